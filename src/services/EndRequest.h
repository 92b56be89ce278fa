#pragma once

#include <optional>

namespace orlo {

// What the system, or the user at the terminal, asks of the whole program: to end without a question. It is
// noted when it comes, whatever runs then, and acted on between two operations.
class EndRequest {
  public:
    virtual ~EndRequest() = default;

    // Nothing as long as the program may go on; then the exit status with which it is to end.
    virtual std::optional<int> ExitStatus() const = 0;
};

}  // namespace orlo
