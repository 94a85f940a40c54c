#include "platform/runtime/int16.h"

#include <limits>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

std::int16_t checked(long long value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) throw RunTimeError(errors::Overflow);
    return static_cast<std::int16_t>(value);
}

}  // namespace

Int16::Int16(long long value) : value_(checked(value)) {}

Int16& Int16::operator++() {
    return *this += 1;
}

Int16 Int16::operator++(int) {
    const Int16 before = *this;
    ++*this;
    return before;
}

Int16& Int16::operator+=(int step) {
    value_ = checked(static_cast<long long>(value_) + step);
    return *this;
}

}  // namespace tessaro
