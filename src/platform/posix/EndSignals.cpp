#include "platform/posix/EndSignals.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace orlo {
namespace {

constexpr int kSignalled = 128;

// A signal's handler reaches nothing but what stands still.
volatile std::sig_atomic_t noted = 0;  // the first signal
volatile std::sig_atomic_t wakeDescriptor = -1;

void OnEnd(int signal) {
    const int error = errno;
    if (noted == 0) noted = signal;
    const char byte = 0;
    // A full pipe wakes as well.
    [[maybe_unused]] const ssize_t written = write(wakeDescriptor, &byte, 1);
    errno = error;
}

}  // namespace

EndSignals::EndSignals() {
    int ends[2] = {};
    if (pipe(ends) == 0) {
        woken_ = PosixHandle(ends[0]);
        wake_ = PosixHandle(ends[1]);
        for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(wake_.Descriptor(), F_SETFL, O_NONBLOCK);
    }
    noted = 0;
    wakeDescriptor = wake_.Descriptor();
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        struct sigaction noting {};
        noting.sa_handler = OnEnd;
        // A terminal that closes sends its signal by the shell and by the system.
        noting.sa_flags = kSignals[i] == SIGHUP ? SA_RESTART : SA_RESTART | static_cast<int>(SA_RESETHAND);
        sigemptyset(&noting.sa_mask);
        sigaction(kSignals[i], nullptr, &before_[i]);
        if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &noting, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
    wakeDescriptor = -1;
    noted = 0;
}

std::optional<int> EndSignals::ExitStatus() const {
    return noted == 0 ? std::nullopt : std::optional<int>(kSignalled + noted);
}

bool EndSignals::Noted() {
    return noted != 0;
}

EndSignals::WatchedInput::int_type EndSignals::WatchedInput::underflow() {
    while (noted == 0) {
        std::array<pollfd, 2> waits = {{{STDIN_FILENO, POLLIN, 0}, {woken_.Descriptor(), POLLIN, 0}}};
        if (poll(waits.data(), waits.size(), -1) < 0) {
            if (errno == EINTR) continue;
            break;
        }
        if (waits[1].revents != 0) break;
        const ssize_t count = read(STDIN_FILENO, buffer_.data(), buffer_.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (count <= 0) break;
        setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
        return traits_type::to_int_type(buffer_.front());
    }
    return traits_type::eof();
}

}  // namespace orlo
