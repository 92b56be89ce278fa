#pragma once

#include <csignal>

namespace orlo {

// While one lives, Ctrl+C in the terminal ends nothing and is only counted; unless it was ignored before.
class InterruptWatch {
  public:
    InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
    ~InterruptWatch();

    // Whether Ctrl+C was pressed since this began to watch.
    bool Interrupted() const;

  private:
    std::sig_atomic_t before_;
};

}  // namespace orlo
