#include "platform/windows/RegistrySettings.h"

#include <gtest/gtest.h>

#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"

namespace orlo {
namespace {

constexpr std::string_view kTestKey = "SOFTWARE\\Brantel Data Service\\Orlo Tests\\1.0\\Settings";

class Registry : public testing::Test {
  protected:
    ~Registry() override { RegDeleteKeyExW(HKEY_CURRENT_USER, WideText(kTestKey).c_str(), 0, 0); }

    static void Store(const wchar_t* name, DWORD kind, const void* bytes, DWORD size) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, WideText(kTestKey).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        RegSetValueExW(key, name, 0, kind, static_cast<const BYTE*>(bytes), size);
        RegCloseKey(key);
    }

    RegistrySettings settings;
};

TEST_F(Registry, ValuesReachTheRegistryWithAFlushAndNotBefore) {
    const std::string path = "C:\\Caf\xC3\xA9\\plan.txt";
    EXPECT_TRUE(settings.Set(kTestKey, "TATime", "45"));
    EXPECT_TRUE(settings.Set(kTestKey, "1", path));
    EXPECT_TRUE(settings.Set(kTestKey, "Long", std::string(5000, 'x')));
    EXPECT_TRUE(settings.Set(kTestKey, "Empty", ""));
    EXPECT_EQ(settings.Get(kTestKey, "tatime"), "45");
    EXPECT_FALSE(RegistrySettings().Get(kTestKey, "TATime"));
    EXPECT_TRUE(settings.Flush());
    RegistrySettings later;
    EXPECT_EQ(later.Get(kTestKey, "TATIME"), "45");
    EXPECT_EQ(later.Get(kTestKey, "1"), path);
    EXPECT_EQ(later.Get(kTestKey, "Long"), std::string(5000, 'x'));
    EXPECT_EQ(later.Get(kTestKey, "Empty"), "");
    EXPECT_FALSE(later.Get(kTestKey, "Missing"));
}

TEST_F(Registry, ATextEndsAtItsZeroOrAtItsEnd) {
    Store(L"With", REG_SZ, L"abc", 8);
    Store(L"Without", REG_SZ, L"abcdef", 6);
    Store(L"More", REG_SZ, L"abc\0def", 16);
    Store(L"Nothing", REG_SZ, nullptr, 0);
    const DWORD number = 45;
    Store(L"Number", REG_DWORD, &number, sizeof number);
    for (const auto* name : {"With", "Without", "More"})
        EXPECT_EQ(settings.Get(kTestKey, name), "abc") << name;
    EXPECT_EQ(settings.Get(kTestKey, "Nothing"), "");
    EXPECT_FALSE(settings.Get(kTestKey, "Number"));
    EXPECT_FALSE(settings.Set(kTestKey, "Zero", std::string("a\0b", 3)));
}

TEST(MachineRegistry, AGivenSimulatorAnswersForItsValueAlone) {
    MachineRegistrySettings settings("D:\\FS2002");
    EXPECT_EQ(settings.Get(kSimulatorKeyPath, "exe path"), "D:\\FS2002");
    EXPECT_FALSE(settings.Get("SOFTWARE\\Brantel Data Service\\Orlo Tests", "EXE Path"));
    EXPECT_FALSE(settings.Set(kSimulatorKeyPath, kSimulatorValue, "E:\\"));
}

}  // namespace
}  // namespace orlo
