#include "core/Path.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(Path, PathsComeApartAtTheirLastSeparatorAndJoinWithOne) {
    const struct {
        std::string_view path, folder, name;
    } cases[] = {{"", "", ""},         {"plan.txt", "", "plan.txt"}, {"/plan.txt", "/", "plan.txt"},
                 {"/a/b", "/a", "b"},  {"a/b/", "a/b", ""},          {"/", "/", ""},
                 {"a\\b", "", "a\\b"}, {"/a/b c.d", "/a", "b c.d"}};
    for (const auto& c : cases) {
        EXPECT_EQ(ParentFolder(c.path), c.folder) << c.path;
        EXPECT_EQ(FileName(c.path), c.name) << c.path;
    }
    EXPECT_EQ(JoinPath("", "a"), "a");
    EXPECT_EQ(JoinPath("/", "a"), "/a");
    EXPECT_EQ(JoinPath("/x", "a"), "/x/a");
    EXPECT_EQ(JoinPath("/x/", "a"), "/x/a");
    EXPECT_EQ(NativePath("\\Aircraft\\b747/model"), "/Aircraft/b747/model");
    EXPECT_EQ(WithoutTrailingSeparator("/a//"), "/a");
    for (std::string_view root : {"/", "//"}) EXPECT_EQ(WithoutTrailingSeparator(root), "/");
    EXPECT_EQ(WithoutTrailingSeparator(""), "");
}

}  // namespace
}  // namespace orlo
