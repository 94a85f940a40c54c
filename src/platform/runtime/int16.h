#pragma once

#include <cstdint>

namespace tessaro {

/// The answer of a shared routine: -1 for yes, 0 for no, in 16 bits. Callers compare with `Yes`
/// or test for non-zero.
using YesNo = std::int16_t;
inline constexpr YesNo Yes = -1;
inline constexpr YesNo No = 0;
/// A condition as such an answer.
constexpr YesNo yesNo(bool truth) {
    return truth ? Yes : No;
}

/// A 16-bit signed counter. Its width limits how many lines and files the program can handle;
/// going past 32767 or below -32768 raises error 6 and leaves the value as it was.
class Int16 {
  public:
    constexpr Int16() = default;
    /// Raises error 6 if `value` does not fit.
    Int16(long long value);  // NOLINT(google-explicit-constructor): reads as a number
    constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

    Int16& operator++();
    Int16 operator++(int);
    Int16& operator+=(int step);

  private:
    std::int16_t value_ = 0;
};

}  // namespace tessaro
