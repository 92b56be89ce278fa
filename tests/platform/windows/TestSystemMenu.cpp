#include <gtest/gtest.h>

#include "platform/Platform.h"
#include "platform/windows/SystemHeader.h"

namespace orlo {
namespace {

constexpr UINT kAbout = 1025;

std::wstring LastEntry(HWND window) {
    const HMENU menu = GetSystemMenu(window, FALSE);
    wchar_t text[20] = L"";
    const int last = GetMenuItemCount(menu) - 1;
    GetMenuStringW(menu, static_cast<UINT>(last), text, 20, MF_BYPOSITION);
    return GetMenuItemID(menu, last) == kAbout ? text : L"";
}

TEST(SystemMenu, HasTheEntryAboutWhileItIsWantedAndPassesAllElseOn) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"title", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                                        nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    const LONG_PTR procedure = GetWindowLongPtrW(window, GWLP_WNDPROC);
    const int entries = GetMenuItemCount(GetSystemMenu(window, FALSE));
    int chosen = 0;
    for (int round = 1; round <= 2; ++round) {
        auto entry = AddAboutToSystemMenu(reinterpret_cast<std::uintptr_t>(window), [&] { ++chosen; });
        EXPECT_EQ(GetMenuItemCount(GetSystemMenu(window, FALSE)), entries + 2);
        EXPECT_EQ(LastEntry(window), L"About");
        SendMessageW(window, WM_SYSCOMMAND, kAbout, 0);
        SendMessageW(window, WM_SYSCOMMAND, SC_HOTKEY, 0);
        EXPECT_EQ(chosen, round);
        SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"other"));
        EXPECT_EQ(GetWindowTextLengthW(window), 5);
        entry.reset();
        EXPECT_EQ(GetMenuItemCount(GetSystemMenu(window, FALSE)), entries);
        EXPECT_EQ(GetWindowLongPtrW(window, GWLP_WNDPROC), procedure);
        SendMessageW(window, WM_SYSCOMMAND, kAbout, 0);
        EXPECT_EQ(chosen, round);
    }
    auto outlives = AddAboutToSystemMenu(reinterpret_cast<std::uintptr_t>(window), [&] { ++chosen; });
    DestroyWindow(window);
    outlives.reset();
}

}  // namespace
}  // namespace orlo
