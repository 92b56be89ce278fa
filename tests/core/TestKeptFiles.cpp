// The store of kept files: nothing that was kept is lost, and nothing half is left.

#include <gtest/gtest.h>

#include "core/KeptContent.h"
#include "core/KeptFiles.h"
#include "core/Path.h"
#include "core/Text.h"
#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

const std::string kFolder = "/state";

struct Store {
    test::MemoryFileSystem files;

    Store() { files.files = {{"/w/plan.txt", "flights"}, {"/w/Aircraft.txt", "aircraft"}}; }

    Keeping Keep(const std::vector<std::string>& paths, std::string_view spared = {}) {
        return KeepFiles(files, kFolder, 0, "Merge", paths, spared).outcome;
    }
    // The contents of the entries, the newest first, each file as "path=content".
    std::vector<std::string> Kept() {
        std::vector<std::string> all;
        for (const KeptEntry& entry : ReadKeptEntries(files, kFolder)) {
            for (const KeptFile& file : entry.Files)
                all.push_back(Concat(file.Path, "=", files.files[KeptContentPath(kFolder, file)]));
        }
        return all;
    }
    std::size_t Contents() {
        std::size_t count = 0;
        for (const auto& [path, text] : files.files) count += path.ends_with(".kept");
        return count;
    }
};

TEST(KeptFiles, AnEntryHoldsWhatBelongsTogetherAndEachContentOnce) {
    Store store;
    EXPECT_EQ(store.Keep({"/w/none.txt", "/w"}), Keeping::Nothing);
    EXPECT_FALSE(store.files.FolderExists(kFolder));
    store.files.files["/w/copy.txt"] = "flights";
    EXPECT_EQ(store.Keep({"/w/plan.txt", "/w/none.txt", "/w/Aircraft.txt", "/w/copy.txt"}), Keeping::Kept);
    EXPECT_EQ(store.Contents(), 2U);
    store.files.files["/w/plan.txt"] = "FLIGHTS";
    EXPECT_EQ(store.Keep({"/w/plan.txt"}), Keeping::Kept);
    const std::vector<std::string> kept = {"/w/plan.txt=FLIGHTS", "/w/plan.txt=flights",
                                           "/w/Aircraft.txt=aircraft", "/w/copy.txt=flights"};
    EXPECT_EQ(store.Kept(), kept);

    const auto entries = ReadKeptEntries(store.files, kFolder);
    EXPECT_EQ(entries[1].When, "1970-01-01 00:00:00");
    EXPECT_EQ(entries[1].Reason, "Merge");
    EXPECT_TRUE(RestoreKept(store.files, kFolder, entries[1].Files[0], "/w/plan.txt"));
    EXPECT_EQ(store.files.files["/w/plan.txt"], "flights");
    // A text that the store holds as a file is that file.
    const std::vector<KeptText> texts = {{"/w/plan.txt", "FLIGHTS"}, {"/w/new.txt", "in memory"}};
    EXPECT_EQ(KeepTexts(store.files, kFolder, 0, "Exit", texts).outcome, Keeping::Kept);
    EXPECT_EQ(store.Contents(), 4U);
    EXPECT_EQ(store.Kept()[1], "/w/new.txt=in memory");
    EXPECT_TRUE(DeleteKept(store.files, kFolder, ReadKeptEntries(store.files, kFolder)[0],
                           ReadKeptEntries(store.files, kFolder)[0].Files));
    // What another file still names stays.
    EXPECT_TRUE(DeleteKept(store.files, kFolder, entries[1], std::span(entries[1].Files).first(2)));
    EXPECT_EQ(store.Kept(), (std::vector<std::string>{"/w/plan.txt=FLIGHTS", "/w/copy.txt=flights"}));
    EXPECT_EQ(store.Contents(), 2U);
}

TEST(KeptFiles, ContentsOfOneHashAreToldApart) {
    Store store;
    const std::uint64_t hash = ContentFactsOf(store.files, "/w/plan.txt")->hash;
    const std::string taken = KeptName(1, hash, KeptKind::Content, "/w/plan.txt");
    store.files.files[Concat(kFolder, "/", taken)] = "FLIGHTS";
    EXPECT_EQ(store.Keep({"/w/plan.txt"}), Keeping::Kept);
    EXPECT_EQ(store.Kept(), std::vector<std::string>{"/w/plan.txt=flights"});
    EXPECT_EQ(store.files.files[Concat(kFolder, "/", taken)], "FLIGHTS");
}

TEST(KeptFiles, TheNewestEntriesStay) {
    Store store;
    for (std::size_t i = 0; i < kMostKeptEntries + 10; ++i) {
        store.files.files["/w/plan.txt"] = Concat("version ", i);
        ASSERT_EQ(store.Keep({"/w/plan.txt"}), Keeping::Kept);
    }
    const std::vector<std::string> kept = store.Kept();
    ASSERT_EQ(kept.size(), kMostKeptEntries);
    EXPECT_EQ(kept.front(), "/w/plan.txt=version 59");
    EXPECT_EQ(kept.back(), "/w/plan.txt=version 10");
    EXPECT_EQ(store.Contents(), kMostKeptEntries);
    // One that is about to be brought back doesn't fall out for the file that it replaces.
    const std::string oldest = ReadKeptEntries(store.files, kFolder).back().Name;
    EXPECT_EQ(store.Keep({"/w/Aircraft.txt"}, oldest), Keeping::Kept);
    EXPECT_EQ(store.Kept().back(), "/w/plan.txt=version 10");
}

// A file system in which the contents of the store seem to be of one gigabyte each.
struct LargeContents : test::MemoryFileSystem {
    std::optional<std::uint64_t> FileSize(const std::string& path) override {
        if (path.ends_with(".kept")) return std::uint64_t{1} << 30;
        return MemoryFileSystem::FileSize(path);
    }
};

TEST(KeptFiles, NoMoreThanTwoGigabytesStayButTheNewestAlways) {
    LargeContents files;
    const std::vector<std::string> all = {"/w/1", "/w/2", "/w/3"};
    for (const std::string& path : all) {
        files.files[path] = path;
        EXPECT_EQ(KeepFiles(files, kFolder, 0, "", std::span(&path, 1)).outcome, Keeping::Kept);
    }
    EXPECT_EQ(ReadKeptEntries(files, kFolder).size(), 2U);
    EXPECT_EQ(KeepFiles(files, kFolder, 0, "", all).outcome, Keeping::Kept);
    ASSERT_EQ(ReadKeptEntries(files, kFolder).size(), 1U);
    EXPECT_EQ(ReadKeptEntries(files, kFolder)[0].Files.size(), 3U);
}

TEST(KeptFiles, AFailureLeavesNothingBehind) {
    struct {
        const char* fault;
        void (*make)(test::MemoryFileSystem&);
    } const kCases[] = {
        {"the disk is full for the second file", [](auto& files) { files.failAfterBytes = 7; }},
        {"the disk is full for the entry", [](auto& files) { files.failAfterBytes = 10; }},
        {"nothing can be renamed", [](auto& files) { files.failCommit = true; }},
        {"nothing can be created", [](auto& files) { files.failCreate = true; }},
    };
    for (const auto& [fault, make] : kCases) {
        Store store;
        const auto before = store.files.files;
        make(store.files);
        EXPECT_EQ(store.Keep({"/w/plan.txt", "/w/Aircraft.txt"}), Keeping::Failed) << fault;
        EXPECT_EQ(store.files.files, before) << fault;
    }
    Store store;
    const std::vector<std::string> plan = {"/w/plan.txt"};
    EXPECT_EQ(KeepFiles(store.files, "", 0, "", plan).outcome, Keeping::Failed) << "no folder";
}

TEST(KeptFiles, AKillLeavesWholeEntriesAndWhatItLostGoesLater) {
    for (int complete = 0; complete < 3; ++complete) {
        Store store;
        ASSERT_EQ(store.Keep({"/w/Aircraft.txt"}), Keeping::Kept);
        store.files.files["/w/Aircraft.txt"] = "other";
        store.files.commitsBeforeKill = complete;
        EXPECT_EQ(store.Keep({"/w/plan.txt", "/w/Aircraft.txt"}), Keeping::Failed);
        store.files.commitsBeforeKill = -1;
        EXPECT_EQ(store.Kept(), std::vector<std::string>{"/w/Aircraft.txt=aircraft"}) << complete;
        // Another program may be about to name it, so it goes only when many others were kept.
        const std::size_t lost = static_cast<std::size_t>(complete);
        EXPECT_EQ(store.Contents(), 1 + lost);
        for (int i = 0; i < 25; ++i) {
            store.files.files["/w/plan.txt"] = Concat("version ", i);
            ASSERT_EQ(store.Keep({"/w/plan.txt"}), Keeping::Kept);
        }
        EXPECT_EQ(store.Contents(), 26U) << complete;
        EXPECT_EQ(store.Kept().size(), 26U);
    }
}

// Files of the store that go while one is kept, as by another program.
struct Emptied : test::MemoryFileSystem {
    std::unique_ptr<OutputFile> CreateReplacing(const std::string& path) override {
        std::erase_if(files, [](const auto& file) { return file.first.ends_with(".kept"); });
        return MemoryFileSystem::CreateReplacing(path);
    }
};

TEST(KeptFiles, AContentThatGoesMeanwhileIsCopiedAgain) {
    Emptied files;
    const std::string path = "/w/plan.txt";
    files.files[path] = "flights";
    EXPECT_EQ(KeepFiles(files, kFolder, 0, "", std::span(&path, 1)).outcome, Keeping::Kept);
    const auto entries = ReadKeptEntries(files, kFolder);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(files.files[KeptContentPath(kFolder, entries[0].Files[0])], "flights");
}

TEST(KeptFiles, NoTextLeadsOutOfTheFolder) {
    KeptEntry entry{
        "", "2026-11-25 18:34:44", "a\\b\nc", {{"/w/line\r\nend \\n", KeptName(7, 1, KeptKind::Content)}}};
    EXPECT_EQ(ParseKeptEntry(FormatKeptEntry(entry)), entry);
    for (const std::string_view name :
         {"../000001-0123456789abcdef.kept", "000001-0123456789abcdef.txt", "/w/plan.txt", "",
          "000001-0123456789ABCDEF.kept", "000001-0123456789abcde/.kept",
          "1234567890123456-0123456789abcdef.kept"}) {
        EXPECT_TRUE(ParseKeptEntry(Concat("file ", name, " /w/plan.txt\r\n")).Files.empty()) << name;
        Store store;
        store.files.files[JoinPath(kFolder, name)] = "not of the store";
        EXPECT_FALSE(RestoreKept(store.files, kFolder, {"", std::string(name)}, "/w/Aircraft.txt"));
    }
}

}  // namespace
}  // namespace orlo
