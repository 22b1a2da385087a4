#include "Foundation/NSNumber.h"

#include "Foundation/Describable.h"
#include <array>
#include <cmath>
#include <limits>

namespace Foundation {

namespace {

// `value` without its fraction, clamped to the range of T.
template <class T> T clamped(double value) noexcept {
    // 2^63 or 2^64: one more than the largest value of T, which no double can represent.
    static constexpr double above = static_cast<double>(T{1} << (std::numeric_limits<T>::digits - 1)) * 2;
    if (std::isnan(value))
        return 0;
    if (value >= above)
        return std::numeric_limits<T>::max();
    if (value <= static_cast<double>(std::numeric_limits<T>::min()))
        return std::numeric_limits<T>::min();
    return static_cast<T>(value);
}

} // namespace

bool NSNumber::isNegative() const noexcept {
    return isFloating() ? std::signbit(floating_) && !std::isnan(floating_) : isNegativeInteger();
}

std::int64_t NSNumber::int64Value() const noexcept {
    static constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (isFloating())
        return clamped<std::int64_t>(floating_);
    const bool isTooLarge = kind_ == Kind::unsignedInteger && integer_ > largest;
    return static_cast<std::int64_t>(isTooLarge ? largest : integer_);
}

std::uint64_t NSNumber::uint64Value() const noexcept {
    if (isFloating())
        return clamped<std::uint64_t>(floating_);
    return isNegativeInteger() ? 0 : integer_;
}

std::string describe(const NSNumber& number) {
    std::array<char, detail::scalarTextSize> buffer;
    if (number.isFloating())
        return std::string(detail::floatingText(number.floating_, buffer.data()));
    return std::string(number.isNegativeInteger() ? detail::integerText(number.int64Value(), buffer.data())
                                                  : detail::unsignedText(number.integer_, buffer.data()));
}

double NSNumber::doubleValue() const noexcept {
    if (isFloating())
        return floating_;
    return isNegativeInteger() ? static_cast<double>(static_cast<std::int64_t>(integer_))
                               : static_cast<double>(integer_);
}

} // namespace Foundation
