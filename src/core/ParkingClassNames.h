#pragma once

#include <array>
#include <string_view>

namespace orlo {

// The words of the classes of parkings by their code in scenery files, as windows and reports spell them;
// empty for a code without one.
inline constexpr std::array<std::string_view, 12> kParkingClassNames = {"",
                                                                        "",
                                                                        "Ramp GA Small",
                                                                        "Ramp GA Medium",
                                                                        "Ramp GA Large",
                                                                        "Ramp Cargo",
                                                                        "Ramp Mil Cargo",
                                                                        "Ramp Mil Combat",
                                                                        "Gate Small",
                                                                        "Gate Medium",
                                                                        "Gate Heavy",
                                                                        "Dock GA"};
inline constexpr int kFirstParkingClass = 2;

}  // namespace orlo
