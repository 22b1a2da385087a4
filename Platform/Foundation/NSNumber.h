// Foundation/NSNumber.h
// Holds a number of any arithmetic type.
// Threads: a plain value.
#pragma once

#include "Runtime/Export.h"
#include <concepts>
#include <cstdint>
#include <string>
#include <type_traits>

namespace Foundation {

class LUMORA_EXPORT NSNumber {
public:
    // Keeps integers exactly and floating-point numbers as double; a bool is 0 or 1.
    template <class T>
    requires(std::is_arithmetic_v<T> &&
             (std::floating_point<T> || sizeof(T) <= sizeof(std::uint64_t))) constexpr NSNumber(T value) noexcept {
        if constexpr (std::floating_point<T>) {
            kind_ = Kind::floating;
            floating_ = static_cast<double>(value);
        } else {
            // Negative values are kept as 64-bit two's complement.
            kind_ = std::is_signed_v<T> ? Kind::signedInteger : Kind::unsignedInteger;
            integer_ = static_cast<std::uint64_t>(value);
        }
    }

    [[nodiscard]] constexpr bool isFloating() const noexcept { return kind_ == Kind::floating; }
    // True for -0.0; false for NaN, whatever its sign bit.
    [[nodiscard]] bool isNegative() const noexcept;

    // The value in another type: a fraction is cut off, an out-of-range value is clamped, NaN gives 0.
    [[nodiscard]] std::int64_t int64Value() const noexcept;
    [[nodiscard]] std::uint64_t uint64Value() const noexcept;
    // The nearest double.
    [[nodiscard]] double doubleValue() const noexcept;
    // Whether the value is not 0.
    [[nodiscard]] bool boolValue() const noexcept { return isFloating() ? floating_ != 0 : integer_ != 0; }

    // The stored integer or double as Describable writes it: "5", "2.0"; "1" for true.
    LUMORA_EXPORT friend std::string describe(const NSNumber& number);

private:
    enum class Kind : std::uint8_t { signedInteger, unsignedInteger, floating };

    bool isNegativeInteger() const noexcept {
        return kind_ == Kind::signedInteger && static_cast<std::int64_t>(integer_) < 0;
    }

    union {
        std::uint64_t integer_;
        double floating_;
    };
    Kind kind_;
};

} // namespace Foundation
