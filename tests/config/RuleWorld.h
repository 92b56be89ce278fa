#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/Session.h"
#include "support/FakeHosts.h"

namespace orlo::test {

using Messages = std::vector<std::pair<int, std::string>>;

// A program folder "/orlo" in memory, and the rules that are read from it.
struct RuleWorld : FakeWorld {
    using Reader = bool(Session&, FileSystem&, MessageHost&);

    Session session;

    RuleWorld() { session.ProgramFolder = "/orlo"; }
    bool Read(Reader* read, const std::string& path, std::string text) {
        files.files[path] = std::move(text);
        return read(session, files, messages);
    }
    bool ReadMissing(Reader* read) {
        files.files.clear();
        return read(session, files, messages);
    }
};

}  // namespace orlo::test
