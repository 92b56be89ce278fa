#include "platform/common/WindowsNames.h"

#include <gtest/gtest.h>

#include <string>

#include "core/Text.h"

namespace orlo {
namespace {

TEST(WindowsNames, PathsOfDisksAreTakenInAllTheirFormsAndNeitherDevicesNorPipesNorStreams) {
    for (const std::string_view path : SplitText(
             "plan.txt|C:\\Games\\FS2002\\aircraft.cfg|c:/Games/FS2002|C:|C:\\|C:plan.txt|\\plan|"
             "..\\Plan\\.\\a.txt|folder\\|\\\\server\\share|\\\\server\\share\\a b\\c.txt|//server/share/x|"
             "caf\xE9\\caf\xC3\xA9.txt|CONSOLE.txt|COM|COM10|COM0|LPTX|nullify|a.con|auxiliary",
             '|')) {
        EXPECT_TRUE(IsDiskPath(path)) << path;
    }
    for (const std::string_view path : SplitText(
             "|NUL|nul|con.txt|C:\\Plan\\AUX|C:\\prn\\plan.txt|NUL .txt|nul.tar.gz|COM1|lpt9.log|COM\xB9|"
             "LPT\xC2\xB3.txt|CONIN$|conout$|\\\\.\\COM1|//./pipe/x|\\\\?\\C:\\plan.txt|\\\\server\\pipe\\x|"
             "\\\\server\\PIPE|\\\\server\\mailslot\\x|\\\\server|\\\\|\\\\\\|plan.txt:more|"
             "C:\\plan.txt::$DATA|1:\\x|a*b|what?|a<b|a>b|a\"b|a\nb",
             '|')) {
        EXPECT_FALSE(IsDiskPath(path)) << path;
    }
    EXPECT_FALSE(IsDiskPath("a|b"));
    EXPECT_FALSE(IsDiskPath(std::string("plan\0.txt", 9)));
}

}  // namespace
}  // namespace orlo
