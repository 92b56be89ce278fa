#include "platform/posix/InterruptWatch.h"

namespace orlo {
namespace {

// A signal's handler reaches nothing but what stands still.
volatile std::sig_atomic_t interrupts = 0;
int watches = 0;
struct sigaction beforeWatch {};

void OnInterrupt(int) {
    interrupts = interrupts + 1;
}

}  // namespace

InterruptWatch::InterruptWatch() : before_(interrupts) {
    if (watches++ > 0) return;
    struct sigaction counting {};
    counting.sa_handler = OnInterrupt;
    counting.sa_flags = SA_RESTART;
    sigemptyset(&counting.sa_mask);
    sigaction(SIGINT, nullptr, &beforeWatch);
    if (beforeWatch.sa_handler != SIG_IGN) sigaction(SIGINT, &counting, nullptr);
}

InterruptWatch::~InterruptWatch() {
    if (--watches == 0 && beforeWatch.sa_handler != SIG_IGN) sigaction(SIGINT, &beforeWatch, nullptr);
}

bool InterruptWatch::Interrupted() const {
    return interrupts != before_;
}

}  // namespace orlo
