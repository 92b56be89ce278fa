#include "platform/common/WindowsNames.h"

#include <algorithm>
#include <array>

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::array<std::string_view, 2> kPorts = {"COM", "LPT"};
// The raised digits 1 to 3 name ports too; in code page 1252 and in UTF-8.
constexpr std::array<std::string_view, 6> kRaised = {"\xB9",     "\xB2",     "\xB3",
                                                     "\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};
constexpr std::array<std::string_view, 2> kServices = {"pipe", "mailslot"};

std::string_view WithoutBlanksBehind(std::string_view text) {
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

bool IsPortNumber(std::string_view text) {
    if (text.size() == 1 && text.front() >= '1' && text.front() <= '9') return true;
    return std::find(kRaised.begin(), kRaised.end(), text) != kRaised.end();
}

// With an extension, or blanks behind it, a device's name still names the device.
bool IsDevice(std::string_view name) {
    const std::string_view base = WithoutBlanksBehind(BeforeFirst(name, "."));
    const auto isBase = [&](std::string_view device) { return EqualNoCase(base, device); };
    if (std::any_of(kDevices.begin(), kDevices.end(), isBase)) return true;
    return std::any_of(kPorts.begin(), kPorts.end(), [&](std::string_view port) {
        return StartsWithNoCase(base, port) && IsPortNumber(base.substr(port.size()));
    });
}

bool IsName(std::string_view name) {
    const auto isWrong = [](char character) {
        return static_cast<unsigned char>(character) < 0x20 ||
               std::string_view("<>:\"|?*").find(character) != std::string_view::npos;
    };
    return std::none_of(name.begin(), name.end(), isWrong) && !IsDevice(name);
}

bool IsSeparatorAt(std::string_view path, std::size_t place) {
    return place < path.size() && kSeparators.find(path[place]) != std::string_view::npos;
}

bool HasDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':' && UpperChar(path[0]) >= 'A' && UpperChar(path[0]) <= 'Z';
}

// Takes the part in front of the next separators, and these separators, off `path`; gives the part.
std::string_view TakePart(std::string_view& path) {
    const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(end);
    path.remove_prefix(std::min(path.find_first_not_of(kSeparators), path.size()));
    return part;
}

// Takes "\\server\share\" off `path`; false where that is no share of files.
bool TakeShare(std::string_view& path) {
    path.remove_prefix(2);
    const std::string_view server = TakePart(path);
    const std::string_view share = TakePart(path);
    const auto isShare = [&](std::string_view service) { return EqualNoCase(share, service); };
    return !server.empty() && server != "." && IsName(server) && !share.empty() && IsName(share) &&
           std::none_of(kServices.begin(), kServices.end(), isShare);
}

}  // namespace

bool IsDiskPath(std::string_view path) {
    if (path.empty()) return false;
    if (IsSeparatorAt(path, 0) && IsSeparatorAt(path, 1)) {
        if (!TakeShare(path)) return false;
    } else if (HasDrive(path)) {
        path.remove_prefix(2);
    }
    while (!path.empty()) {
        if (!IsName(TakePart(path))) return false;
    }
    return true;
}

}  // namespace orlo
