#include "platform/common/ProgramKind.h"

#include <cstdint>

namespace orlo {
namespace {

// Where a program of DOS tells the place of the Windows program behind it, and where that one tells its
// subsystem.
constexpr std::size_t kPlaceOfPlace = 0x3C;
constexpr std::size_t kPlaceOfSubsystem = 0x5C;
constexpr std::uint32_t kGraphical = 2;

// Little-endian; 0 for what the bytes don't hold.
std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t size) {
    if (place > bytes.size() || size > bytes.size() - place) return 0;
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
    return number;
}

}  // namespace

ProgramKind ProgramKindOf(std::string_view head) {
    if (!head.starts_with("MZ")) return ProgramKind::Other;
    const std::size_t place = NumberAt(head, kPlaceOfPlace, 4);
    if (place >= head.size() || !head.substr(place).starts_with(std::string_view("PE\0\0", 4)))
        return ProgramKind::WindowsConsole;
    return NumberAt(head, place + kPlaceOfSubsystem, 2) == kGraphical ? ProgramKind::WindowsGraphical
                                                                      : ProgramKind::WindowsConsole;
}

}  // namespace orlo
