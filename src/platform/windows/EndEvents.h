#pragma once

#include "platform/Platform.h"

namespace orlo {

// The events by which a console ends its programs. The windows of the desktop program are asked by messages
// instead.
class EndEvents : public EndWatch {
  public:
    EndEvents();
    EndEvents(const EndEvents&) = delete;
    EndEvents& operator=(const EndEvents&) = delete;
    ~EndEvents() override;

    std::optional<int> ExitStatus() const override;
    std::streambuf& Input() override { return input_; }
    int Descriptor() const override { return -1; }

    // Whether one was noted.
    static bool Noted();

  private:
    class WatchedInput : public std::streambuf {
        int_type underflow() override;

        char byte_ = 0;
    };

    WatchedInput input_;
};

}  // namespace orlo
