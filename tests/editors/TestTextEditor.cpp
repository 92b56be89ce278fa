#include "editors/TextEditor.h"

#include <gtest/gtest.h>

#include <sstream>

#include "console/ConsoleHost.h"
#include "console/ScriptRunner.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

TEST(TextEditor, AStoredTextIsReadPlainAndComesBackAsItWas) {
    const std::pair<const char*, const char*> cases[] = {
        {R"(one\n\ntwo\n)", "one\r\n\r\ntwo\r\n"},
        {R"(a\tb\/c)", "a\tb/c"},
        {R"(C:\x\\n\\t\\/\)", "C:\\x\\\r\n\\\t\\/\\"},
    };
    for (const auto& [stored, plain] : cases) EXPECT_EQ(PlainText(stored), plain);
    EXPECT_EQ(StoredText("a\nb\rc\r\n\rd/"), R"(a\nb\nc\n\nd\/)");
    // All texts of up to five of the characters that matter.
    std::vector<std::string> texts = {""};
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const std::string stored = StoredText(texts[at]);
        ASSERT_EQ(StoredText(PlainText(stored)), stored) << testing::PrintToString(texts[at]);
        for (const char next : texts[at].size() < 5 ? std::string_view("\\nt/\t\r\n") : std::string_view())
            texts.push_back(texts[at] + next);
    }
}

// The window is opened as an editor opens it, and a script acts in it.
TEST(TextEditor, OnlyOkTakesWhatWasTyped) {
    const std::string text = R"(A raw/ slash\nend)";
    const std::pair<const char*, std::string> cases[] = {
        {"show frmTextEdit.txtText\nclick cmdOK", R"(A raw\/ slash\nend)"},
        {"set txtText \"one\\n\\\\two/\"\nkey txtText Enter\nclick cmdOK", R"(one\n\two\/)"},
        {"type txtText other\nclick cmdCancel", text},
        {"type txtText other\nkey txtText Escape", text},
        {"type txtText other\nclose", text},
    };
    for (const auto& [lines, result] : cases) {
        test::MemoryFileSystem files;
        std::ostringstream out;
        ConsoleHost host(files, out, false, false);
        test::FakeWorld world{{.frontEnd = &host}};
        Program program{world.services, "/program", "/state"};
        std::istringstream script(lines);
        ScriptRunner runner(program, host, script, out, out, false);
        MainForm& main = program.forms.frmMain;
        EXPECT_EQ(EditText(program.context, "Edit Description", text, main), result) << lines;
        EXPECT_EQ(program.forms.frmTextEdit.caption, "Edit Description");
        EXPECT_EQ(out.str(), lines == cases[0].first ? "A raw/ slash\\nend\n" : "");
    }
}

}  // namespace
}  // namespace orlo
