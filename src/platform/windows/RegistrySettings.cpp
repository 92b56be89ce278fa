#include "platform/windows/RegistrySettings.h"

#include "core/Text.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"

namespace orlo {
namespace {

constexpr int kReadTries = 8;  // a value can grow between the question for its size and the one for its text

class RegistryKey {
  public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }

    bool Open(HKEY root, std::string_view keyPath, REGSAM access) {
        return RegOpenKeyExW(root, WideText(keyPath).c_str(), 0, access, &key_) == ERROR_SUCCESS;
    }
    bool OpenOrMake(HKEY root, std::string_view keyPath, REGSAM access) {
        return RegCreateKeyExW(root, WideText(keyPath).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access,
                               nullptr, &key_, nullptr) == ERROR_SUCCESS;
    }

    std::optional<std::string> ReadText(std::string_view name) const;
    bool WriteText(std::string_view name, std::string_view text) const;

  private:
    HKEY key_ = nullptr;
};

// A text ends at its first zero, or at its end where it was stored without one. In an expandable text,
// variables of the environment are replaced.
std::optional<std::string> RegistryKey::ReadText(std::string_view name) const {
    const std::wstring wideName = WideText(name);
    std::wstring text(MAX_PATH, L'\0');
    for (int i = 0; i < kReadTries; ++i) {
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status =
            RegGetValueW(key_, nullptr, wideName.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size);
        if (status == ERROR_SUCCESS) {
            text.resize(size / sizeof(wchar_t));
            return NarrowText(std::wstring_view(text).substr(0, text.find(L'\0')));
        }
        if (status != ERROR_MORE_DATA) break;
        text.assign(size / sizeof(wchar_t) + 1, L'\0');
    }
    return std::nullopt;
}

bool RegistryKey::WriteText(std::string_view name, std::string_view text) const {
    const std::wstring wide = WideText(text);
    const auto size = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key_, WideText(name).c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(wide.c_str()), size) == ERROR_SUCCESS;
}

std::pair<std::string, std::string> ChangeKey(std::string_view keyPath, std::string_view name) {
    return {UpperText(keyPath), UpperText(name)};
}

bool HasZero(std::string_view text) {
    return text.find('\0') != std::string_view::npos;
}

}  // namespace

std::optional<std::string> RegistrySettings::Get(std::string_view keyPath, std::string_view name) {
    const auto change = changes_.find(ChangeKey(keyPath, name));
    if (change != changes_.end()) return change->second.value;
    RegistryKey key;
    if (!key.OpenOrMake(HKEY_CURRENT_USER, keyPath, KEY_QUERY_VALUE)) return std::nullopt;
    return key.ReadText(name);
}

bool RegistrySettings::Set(std::string_view keyPath, std::string_view name, std::string_view value) {
    if (HasZero(keyPath) || HasZero(name) || HasZero(value)) return false;
    changes_.insert_or_assign(ChangeKey(keyPath, name),
                              Change{std::string(keyPath), std::string(name), std::string(value)});
    return true;
}

bool RegistrySettings::Flush() {
    for (auto next = changes_.begin(); next != changes_.end();) {
        const Change& change = next->second;
        RegistryKey key;
        const bool written = key.OpenOrMake(HKEY_CURRENT_USER, change.keyPath, KEY_SET_VALUE) &&
                             key.WriteText(change.name, change.value);
        next = written ? changes_.erase(next) : std::next(next);
    }
    return changes_.empty();
}

std::optional<std::string> MachineRegistrySettings::Get(std::string_view keyPath, std::string_view name) {
    if (!simulator_.empty() && EqualNoCase(keyPath, kSimulatorKeyPath) && EqualNoCase(name, kSimulatorValue))
        return simulator_;
    RegistryKey key;
    if (!key.Open(HKEY_LOCAL_MACHINE, keyPath, KEY_QUERY_VALUE | KEY_WOW64_32KEY)) return std::nullopt;
    return key.ReadText(name);
}

}  // namespace orlo
