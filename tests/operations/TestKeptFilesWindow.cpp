#include <gtest/gtest.h>

#include "core/KeptFiles.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

struct KeptProgram : test::FakeProgram {
    std::map<std::string, std::string>& files = world.files.files;
    KeptFilesForm& kept = program.forms.frmKeptFiles;

    KeptProgram() {
        files = {{"/w/plan.txt", "now"}};
        Keep("/w/plan.txt");
        files["/w/plan.txt"] = "later";
    }
    void Keep(const std::string& path) {
        EXPECT_EQ(KeepFiles(world.files, session.StateFolder, 0, "Save", std::span(&path, 1)).outcome,
                  Keeping::Kept);
    }
    // Restores the oldest entry over the plan.
    void Restore() {
        world.windows.paths = {"/w/plan.txt"};
        inModal = [&] {
            kept.lvKept.current = kept.lvKept.Count() - 1;
            Press(kept.cmdRestore);
        };
        Press(form.mnuHelpKeptFiles);
    }
};

TEST(KeptFilesWindow, WhatAFileIsRestoredOverIsKeptToo) {
    KeptProgram program;
    // The oldest entry must not fall out for it.
    for (std::size_t i = 1; i < kMostKeptEntries; ++i) {
        program.files["/w/other.txt"] = std::to_string(i);
        program.Keep("/w/other.txt");
    }
    program.Restore();
    EXPECT_EQ(program.files["/w/plan.txt"], "now");
    EXPECT_EQ(program.form.sbMain.text, "Kept a copy of [/w/plan.txt].");
    const auto newest = ReadKeptEntries(program.world.files, "/state").front();
    EXPECT_EQ(program.files[KeptContentPath("/state", newest.Files[0])], "later");
    // The same once more changes nothing, so nothing is kept.
    program.Restore();
    EXPECT_EQ(ReadKeptEntries(program.world.files, "/state").front(), newest);
}

TEST(KeptFilesWindow, WhereTheOldFileCannotBeKeptItStays) {
    KeptProgram program;
    program.world.files.failCommit = true;
    program.Restore();
    EXPECT_EQ(program.files["/w/plan.txt"], "later");
    EXPECT_EQ(program.world.messages.shown.back().first, kMarkCritical);
}

TEST(KeepAside, IsToldBehindWhatTheEventLeavesInTheStatusBar) {
    KeptProgram program;
    const std::vector<std::string> both = {"/w/plan.txt", "/w/plan.txt", "/w/other.txt"};
    program.files["/w/other.txt"] = "other";
    program.form.sbMain.text = "Loaded.";
    ASSERT_TRUE(KeepAside(program.context, "Save", "/w/plan.txt"));
    TellNotes(program.context);
    EXPECT_EQ(program.form.sbMain.text, "Loaded. Kept a copy of [/w/plan.txt].");
    program.session.kept.Notes.Kept.clear();
    ASSERT_TRUE(KeepAside(program.context, "Save", both));
    TellNotes(program.context);
    EXPECT_EQ(program.form.sbMain.text, "Loaded. Kept a copy of [/w/plan.txt] and of 1 more.");
    ForgetNotWritten(program.context);
    EXPECT_EQ(program.form.sbMain.text, "Loaded.");
}

}  // namespace
}  // namespace orlo
