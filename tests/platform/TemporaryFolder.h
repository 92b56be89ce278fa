#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>

namespace orlo::test {

// A real folder that goes with the test, and what tests do in it without the code under test.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string form = (std::filesystem::temp_directory_path() / "orlo-test-XXXXXX").string();
        if (mkdtemp(form.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = form;
        std::filesystem::permissions(path_, std::filesystem::perms(0755));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string Path(const std::string& name = "") const { return name.empty() ? path_ : path_ + "/" + name; }

    std::string Put(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << content;
        return Path(name);
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        if (!file) return "(missing)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::size_t Entries(const std::string& name = "") const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(Path(name)),
                                                      std::filesystem::directory_iterator()));
    }

  private:
    std::string path_;
};

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
