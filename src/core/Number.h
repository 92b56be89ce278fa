#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlo {

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// The nearest whole number; a half goes to the even one.
double RoundHalfEven(double value);

// A whole number as people type it, independent of locale: blanks around, an optional sign, digits, an
// optional fraction that is rounded with halves to even. Nothing for any other text and for values out of
// 32-bit range.
std::optional<std::int32_t> ParseWholeNumber(std::string_view text);

// The same form with its fraction kept.
std::optional<double> ParseDecimal(std::string_view text);

// The number filled with zeros on the left to at least `digits` digits; a minus sign stands in front.
std::string FormatDigits(std::int64_t value, int digits);

// The number with exactly `decimals` digits behind the point; halves are rounded away from zero.
std::string FormatFixed(double value, int decimals);

}  // namespace orlo
