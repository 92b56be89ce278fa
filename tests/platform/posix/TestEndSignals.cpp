// The signals that ask the program to end are noted, and end it only the second time.

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <istream>
#include <string>
#include <vector>

#include "platform/posix/ChildProcess.h"
#include "platform/posix/EndSignals.h"
#include "platform/posix/InterruptWatch.h"

namespace orlo {
namespace {

constexpr int kByTheSystem = -1;

int Status(const EndWatch& end) {
    return end.ExitStatus().value_or(0);
}

struct SignalCase {
    const char* what;
    std::vector<int> signals;
    int status;  // kByTheSystem: a signal has ended the process
};

TEST(EndSignals, TheFirstIsNotedAndASecondOfItsKindEndsTheProgram) {
    const SignalCase cases[] = {
        {"none", {}, 0},
        {"the system", {SIGTERM}, 143},
        {"the terminal", {SIGHUP}, 129},
        {"Ctrl+C", {SIGINT}, 130},
        {"of two kinds the first", {SIGHUP, SIGTERM}, 129},
        {"a terminal tells twice", {SIGHUP, SIGHUP}, 129},
        {"the system insists", {SIGTERM, SIGTERM}, kByTheSystem},
        {"Ctrl+C insists", {SIGINT, SIGINT}, kByTheSystem},
    };
    for (const SignalCase& test : cases) {
        const int status = test::RunInChild([&] {
            const EndSignals end;
            for (const int signal : test.signals) raise(signal);
            return Status(end);
        });
        EXPECT_EQ(status, test.status) << test.what;
    }
}

TEST(EndSignals, WhatIsIgnoredOrMeantForAToolIsNotNoted) {
    EXPECT_EQ(test::RunInChild([] {
                  signal(SIGHUP, SIG_IGN);
                  const EndSignals end;
                  raise(SIGHUP);
                  {
                      const InterruptWatch tool;
                      raise(SIGINT);
                  }
                  if (Status(end) != 0) return 1;
                  raise(SIGINT);
                  return Status(end);
              }),
              130);
    // Afterwards all is as before.
    EXPECT_EQ(test::RunInChild([] {
                  { const EndSignals end; }
                  raise(SIGTERM);
                  return 0;
              }),
              kByTheSystem);
}

// A child that waits for a line when the signal comes, or is just about to.
TEST(EndSignals, StandardInputEndsWhileItWaits) {
    int input[2];
    int ready[2];
    ASSERT_EQ(pipe(input), 0);
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);  // in place of a hang
        dup2(input[0], STDIN_FILENO);
        EndSignals end;
        std::istream lines(&end.Input());
        std::string line;
        std::getline(lines, line);
        [[maybe_unused]] const auto told = write(ready[1], "!", 1);
        std::string rest;
        std::getline(lines, rest);
        _exit(line == "one" && lines.eof() ? Status(end) : 1);
    }
    ASSERT_EQ(write(input[1], "one\nbegun", 9), 9);
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    kill(child, SIGTERM);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 143);
    for (const int end : {input[0], input[1], ready[0], ready[1]}) close(end);
}

}  // namespace
}  // namespace orlo
