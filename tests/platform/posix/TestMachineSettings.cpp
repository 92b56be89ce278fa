#include <gtest/gtest.h>

#include "core/Settings.h"
#include "core/Text.h"
#include "platform/TemporaryFolder.h"
#include "platform/common/WineRegistry.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixMachineSettings.h"

namespace orlo {
namespace {

constexpr std::string_view kRegistry = R"(WINE REGISTRY Version 2
;; All keys relative to \\Machine

#arch=win64

[Software\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0] 1012345678
#time=1d0a
"EXE Path"="C:\\Wrong"
"Only64"="yes"

[Software\\Wow6432Node\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0] 1012345678
#time=1d0a
@="default"
"Number"=dword:00000008
"EXE Path"="C:\\Program Files\\FS 2002"
"Quote \"x\""="say \"hi\" \\ \x41\x00e9\xd83d\xde00\xd83d!"
"Tab"="a\tb\nc\101"
"Expand"=str(2):"%ProgramFiles%\\x"
"Many"=str(7):"a\0b"
"Hex"=hex(1):43,00,3a,00,5c,00,\
  e9,00,00,00,41,00
"Odd"=hex(1):43,00,3a
"Binary"=hex:01,02
"Cut"="no end
"NoValue"
"Stray"=
"Last"="here"

[Software\\Br[ack\]et] 1
"a"="in brackets"

[Software\\Broken
"Last"="elsewhere"
)";

TEST(WineRegistry, TextValuesAreFoundAndDecoded) {
    const std::string_view fs = "software\\wow6432node\\MICROSOFT\\Microsoft Games\\Flight Simulator\\8.0";
    const struct {
        std::string_view key, name;
        std::optional<std::string> value;
    } cases[] = {
        {fs, "exe PATH", "C:\\Program Files\\FS 2002"},
        {fs, "Quote \"x\"", "say \"hi\" \\ A\xC3\xA9\xF0\x9F\x98\x80\xEF\xBF\xBD!"},
        {fs, "Tab", "a\tb\ncA"},
        {fs, "Expand", "%ProgramFiles%\\x"},
        {fs, "Hex", "C:\\\xC3\xA9"},
        {fs, "Odd", "C"},
        {fs, "Last", "here"},
        {"Software\\Br[ack]et", "a", "in brackets"},
        {"Software\\Broken", "Last", std::nullopt},
        {"Software", "Last", std::nullopt},
    };
    for (const auto& c : cases) EXPECT_EQ(FindWineRegistryValue(kRegistry, c.key, c.name), c.value) << c.name;
    for (std::string_view name : {"Number", "Many", "Binary", "Cut", "NoValue", "Stray", ""})
        EXPECT_FALSE(FindWineRegistryValue(kRegistry, fs, name)) << name;
    EXPECT_EQ(FindWineRegistryValue(kRegistry, kSimulatorKeyPath, "EXE Path"), "C:\\Program Files\\FS 2002");
    EXPECT_EQ(FindWineRegistryValue(kRegistry, kSimulatorKeyPath, "Only64"), "yes");
}

TEST(WineRegistry, DrivePathsComeApart) {
    for (std::string_view path : {"", "C", "/usr", "1:\\x", "\\\\server\\share"})
        EXPECT_FALSE(SplitDrivePath(path)) << path;
    EXPECT_EQ(SplitDrivePath("D:\\FS 2002/Aircraft\\")->rest, "FS 2002/Aircraft/");
    EXPECT_EQ(SplitDrivePath("D:\\FS 2002")->drive, 'd');
    EXPECT_EQ(SplitDrivePath("z:")->rest, "");
}

std::string SimulatorPath(PosixMachineSettings& settings) {
    return GetMachineSetting(settings, "Microsoft", "Microsoft Games\\Flight Simulator", "8.0", "",
                             "EXE Path", "none");
}

TEST(MachineSettings, ThePathComesFromTheFirstPlaceThatHasOne) {
    const test::TemporaryFolder folder;
    PosixFileSystem files;
    const std::string machine = folder.Path("etc/machine.txt");
    const std::string prefix = folder.Path("wine");
    const auto path = [&] {
        PosixMachineSettings settings(files, machine, prefix);
        return SimulatorPath(settings);
    };
    EXPECT_EQ(path(), "none");

    folder.Put("wine/system.reg", std::string(kRegistry));
    EXPECT_EQ(path(), "C:\\Program Files\\FS 2002");  // a prefix without that drive

    // The folder's name differs in case, and the drive is a link as Wine makes it.
    folder.Put("wine/drive_c/Program Files/fs 2002/fs2002.exe", "");
    EXPECT_EQ(path(), folder.Path("wine/drive_c/Program Files/fs 2002"));
    folder.Put("disk/PROGRAM FILES/FS 2002/fs2002.exe", "");
    std::filesystem::create_directory(folder.Path("wine/dosdevices"));
    std::filesystem::create_directory_symlink("../../disk", folder.Path("wine/dosdevices/c:"));
    EXPECT_EQ(path(), folder.Path("disk/PROGRAM FILES/FS 2002"));

    folder.Put("etc/machine.txt", Concat("[", kSimulatorKeyPath, "]\nEXE Path=/games/fs\n"));
    EXPECT_EQ(path(), "/games/fs");

    PosixMachineSettings settings(files, machine, prefix);
    settings.SetSimulator("/given");
    EXPECT_EQ(SimulatorPath(settings), "/given");
    settings.SetSimulator("");
    EXPECT_EQ(SimulatorPath(settings), "/games/fs");
    EXPECT_FALSE(settings.Set(kSimulatorKeyPath, kSimulatorValue, "/x"));
    EXPECT_TRUE(settings.Flush());
    EXPECT_EQ(settings.Get(kSimulatorKeyPath, "Only64"), "yes");
    EXPECT_EQ(settings.Get(kSimulatorKeyPath, "Missing"), std::nullopt);

    PosixMachineSettings nowhere(files, "", "");
    EXPECT_EQ(SimulatorPath(nowhere), "none");
}

}  // namespace
}  // namespace orlo
