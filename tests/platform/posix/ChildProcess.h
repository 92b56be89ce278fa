#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace orlo::test {

// Exit status of a child process that runs `act` and ends there and then, without any destructor.
inline int RunInChild(const std::function<int()>& act) {
    const pid_t child = fork();
    if (child == 0) _exit(act());
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

// The same without an administrator's rights, which no permission holds back.
inline int RunAsPlainUser(const std::function<int()>& act) {
    return RunInChild([&] {
        constexpr uid_t kNobody = 65534;
        if (getuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) return 99;
        return act();
    });
}

}  // namespace orlo::test
