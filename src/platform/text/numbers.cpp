#include "platform/text/numbers.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {

namespace {

[[noreturn]] void raiseMismatch(std::string_view text) {
    throw RunTimeError(errors::TypeMismatch, std::string(text));
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// "&H" numbers carry their sign in the top bit of the narrowest type that holds them: &HFFFF is -1,
// &H10000 is 65536.
double hexadecimal(std::string_view digits) {
    std::uint32_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
    if (stop != end || error == std::errc::invalid_argument) raiseMismatch(digits);
    if (error == std::errc::result_out_of_range) throw RunTimeError(errors::Overflow);
    if (value <= std::numeric_limits<std::uint16_t>::max()) return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
}

double decimal(std::string_view text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end || error == std::errc::invalid_argument) raiseMismatch(text);
    if (error == std::errc::result_out_of_range) throw RunTimeError(errors::Overflow);
    return value;
}

bool isHexadecimal(std::string_view text) {
    return text.starts_with("&H") || text.starts_with("&h");
}

template <class Integer>
Integer narrowed(double value) {
    const double rounded = std::nearbyint(value);
    if (rounded < std::numeric_limits<Integer>::min() ||
        rounded > std::numeric_limits<Integer>::max())
        throw RunTimeError(errors::Overflow);
    return static_cast<Integer>(rounded);
}

}  // namespace

double toNumber(std::string_view text) {
    std::string_view number = trimmed(text);
    if (isHexadecimal(number)) return hexadecimal(number.substr(2));
    // Keeps out the words for infinity, which the conversion would take.
    if (number.find_first_not_of("0123456789+-.eE") != std::string_view::npos) raiseMismatch(text);
    if (number.starts_with('+') && !number.starts_with("+-")) number.remove_prefix(1);
    return decimal(number);
}

Int16 toInt16(std::string_view text) {
    return narrowed<std::int16_t>(toNumber(text));
}

int toInteger(std::string_view text) {
    return narrowed<std::int32_t>(toNumber(text));
}

bool toBoolean(std::string_view text) {
    if (sameName(text, "True")) return true;
    if (sameName(text, "False")) return false;
    return toNumber(text) != 0;
}

bool equalsNumber(std::string_view text, int number) {
    return toNumber(text) == number;
}

}  // namespace tessaro
