#include "core/Number.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/Text.h"

namespace orlo {
namespace {

// Sign, digits and fraction of a typed number.
struct NumberParts {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
};

std::optional<NumberParts> SplitNumber(std::string_view text) {
    text = TrimBlanks(text);
    NumberParts parts;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        parts.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    std::size_t length = 0;
    while (length < text.size() && IsDigit(text[length])) ++length;
    parts.whole = text.substr(0, length);
    text.remove_prefix(length);
    if (!text.empty()) {
        if (text.front() != '.') return std::nullopt;
        parts.fraction = text.substr(1);
        for (char character : parts.fraction) {
            if (!IsDigit(character)) return std::nullopt;
        }
    }
    if (parts.whole.empty() && parts.fraction.empty()) return std::nullopt;
    return parts;
}

// Whether the fraction rounds the whole number up, halves to even.
bool RoundsUp(std::string_view fraction, bool wholeIsOdd) {
    if (fraction.empty() || fraction.front() < '5') return false;
    if (fraction.front() > '5') return true;
    for (char digit : fraction.substr(1)) {
        if (digit != '0') return true;
    }
    return wholeIsOdd;
}

}  // namespace

// The mode of rounding, which nobody here changes, is to the nearest, halves to even.
double RoundHalfEven(double value) {
    return std::nearbyint(value);
}

std::optional<std::int32_t> ParseWholeNumber(std::string_view text) {
    const auto parts = SplitNumber(text);
    if (!parts) return std::nullopt;
    std::int64_t value = 0;
    for (char digit : parts->whole) {
        value = value * 10 + (digit - '0');
        if (value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
    }
    if (RoundsUp(parts->fraction, value % 2 != 0)) ++value;
    if (parts->negative) value = -value;
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(value);
}

std::optional<double> ParseDecimal(std::string_view text) {
    if (!SplitNumber(text)) return std::nullopt;
    text = TrimBlanks(text);
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc()) return value;
    // Out of range: too large, or so small that it is zero.
    const std::string_view whole = BeforeFirst(text, ".");
    return whole.find_first_of("123456789") == std::string_view::npos ? std::optional<double>(0)
                                                                      : std::nullopt;
}

std::string FormatDigits(std::int64_t value, int digits) {
    const bool negative = value < 0;
    std::string text =
        std::to_string(negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value));
    if (digits > 0 && text.size() < static_cast<std::size_t>(digits)) {
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    }
    return negative ? "-" + text : text;
}

std::string FormatFixed(double value, int decimals) {
    char buffer[400];
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::round(value * scale) / scale + 0.0;  // turns a -0 into 0
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, std::isfinite(rounded) ? rounded : value,
                      std::chars_format::fixed, decimals);
    return result.ec == std::errc() ? std::string(buffer, result.ptr) : std::string();
}

}  // namespace orlo
