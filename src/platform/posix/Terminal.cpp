#include "platform/posix/Terminal.h"

#include <unistd.h>

namespace orlo {

bool IsTerminal(StandardStream stream) {
    switch (stream) {
        case StandardStream::Input:
            return isatty(STDIN_FILENO) == 1;
        case StandardStream::Output:
            return isatty(STDOUT_FILENO) == 1;
        case StandardStream::Error:
            break;
    }
    return isatty(STDERR_FILENO) == 1;
}

}  // namespace orlo
