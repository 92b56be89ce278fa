#include <utility>

#include "platform/Platform.h"
#include "platform/windows/SystemHeader.h"

namespace orlo {
namespace {

// Commands of programs lie below the system's own, which start at 0xF000. The system keeps four bits to
// itself.
constexpr UINT_PTR kAboutCommand = 1025;
constexpr UINT_PTR kCommandBits = 0xFFF0;

// What hangs at the window: the entry while it lives, and the window's former procedure.
constexpr const wchar_t* kEntryProperty = L"Orlo.About";
constexpr const wchar_t* kFormerProperty = L"Orlo.FormerProcedure";

class AboutEntry {
  public:
    AboutEntry(HWND window, std::function<void()> chosen) : window_(window), chosen_(std::move(chosen)) {
        const HMENU menu = GetSystemMenu(window_, FALSE);
        AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(menu, MF_STRING, kAboutCommand, L"About");
        SetPropW(window_, kEntryProperty, this);
        if (GetPropW(window_, kFormerProperty) != nullptr) return;
        SetPropW(window_, kFormerProperty,
                 reinterpret_cast<HANDLE>(GetWindowLongPtrW(window_, GWLP_WNDPROC)));
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OnMessage));
    }
    AboutEntry(const AboutEntry&) = delete;
    AboutEntry& operator=(const AboutEntry&) = delete;
    ~AboutEntry() {
        if (window_ == nullptr) return;
        RemovePropW(window_, kEntryProperty);
        RestoreProcedure(window_);
        const HMENU menu = GetSystemMenu(window_, FALSE);
        const int last = GetMenuItemCount(menu) - 1;
        if (last < 1 || GetMenuItemID(menu, last) != kAboutCommand) return;
        DeleteMenu(menu, static_cast<UINT>(last), MF_BYPOSITION);
        DeleteMenu(menu, static_cast<UINT>(last - 1), MF_BYPOSITION);
    }

  private:
    // Where another procedure has been put before this one since, this one stays and passes on.
    static void RestoreProcedure(HWND window) {
        if (GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&OnMessage)) return;
        const HANDLE former = RemovePropW(window, kFormerProperty);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
    }

    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM word, LPARAM more) {
        auto* entry = static_cast<AboutEntry*>(GetPropW(window, kEntryProperty));
        const auto former = reinterpret_cast<WNDPROC>(GetPropW(window, kFormerProperty));
        if (entry != nullptr && message == WM_SYSCOMMAND &&
            (word & kCommandBits) == (kAboutCommand & kCommandBits)) {
            entry->chosen_();
            return 0;
        }
        if (message == WM_NCDESTROY) {
            RemovePropW(window, kEntryProperty);
            RestoreProcedure(window);
            if (entry != nullptr) entry->window_ = nullptr;
        }
        return CallWindowProcW(former, window, message, word, more);
    }

    HWND window_;  // null once it is gone
    std::function<void()> chosen_;
};

}  // namespace

std::shared_ptr<void> AddAboutToSystemMenu(std::uintptr_t window, std::function<void()> chosen) {
    return std::make_shared<AboutEntry>(reinterpret_cast<HWND>(window), std::move(chosen));
}

}  // namespace orlo
