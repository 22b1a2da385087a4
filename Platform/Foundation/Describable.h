// Foundation/Describable.h
// The text of a value, in the style of "Optional(5)", as a parameter type: a function with a `const Describable&`
// parameter accepts any value that can be described. Every header of generated texts includes this one, so it includes
// little. Text: UTF-8; the bytes of strings are passed through unchanged. Threads: plain values.
#pragma once

#include "Runtime/Export.h"
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <new> // std::bad_alloc
#include <string>
#include <string_view>
#include <type_traits>
#include <utility> // std::declval

namespace Foundation {

namespace detail {

inline constexpr std::size_t scalarTextSize = 32; // enough for the longest number

// Each returns a text, which may be in `buffer`, a buffer of scalarTextSize bytes.
LUMORA_EXPORT std::string_view integerText(std::int64_t value, char* buffer) noexcept;
LUMORA_EXPORT std::string_view unsignedText(std::uint64_t value, char* buffer) noexcept;
LUMORA_EXPORT std::string_view floatingText(float value, char* buffer) noexcept;
LUMORA_EXPORT std::string_view floatingText(double value, char* buffer) noexcept;
LUMORA_EXPORT std::string_view floatingText(long double value, char* buffer) noexcept;
LUMORA_EXPORT std::string_view byteText(char byte, char* buffer) noexcept;
// The character in UTF-8; U+FFFD for an invalid code point.
LUMORA_EXPORT std::string_view characterText(std::uint32_t codePoint, char* buffer) noexcept;
// Appends `text` in quotation marks, with quotation marks, backslashes and control characters escaped.
LUMORA_EXPORT void appendQuoted(std::string& out, std::string_view text);

template <class T>
concept NarrowCharacter = std::same_as<T, char> || std::same_as<T, char8_t>;
template <class T>
concept WideCharacter = std::same_as<T, char16_t> || std::same_as<T, char32_t> || std::same_as<T, wchar_t>;

template <class T>
concept DescribesItself = requires(const T& value) {
    { describe(value) } -> std::convertible_to<std::string>; // found by argument-dependent lookup only
};

// The element references of std::vector<bool> and std::bitset.
template <class T>
concept BoolProxy = std::is_class_v<T> && std::convertible_to<const T&, bool> && requires(T value) {
    value.flip();
};

template <class T>
concept OptionalLike = requires(const T& value) {
    typename T::value_type;
    { value.has_value() } -> std::same_as<bool>;
    *value;
};

// Whether T is std::nullopt_t, by its name: <optional> would make this header compile a tenth slower.
template <class T> consteval bool isNullopt() {
    return std::string_view(__PRETTY_FUNCTION__).ends_with("T = std::nullopt_t]");
}

template <class T> using ElementOf = std::remove_cvref_t<decltype(*std::begin(std::declval<const T&>()))>;
// Strings of other characters than char are excluded, because they would be printed as a list of letters, and so are
// types that are their own element type, such as std::filesystem::path.
template <class T>
concept Sequence = !std::same_as<ElementOf<T>, T> && !WideCharacter<ElementOf<T>> &&
                   !std::same_as<ElementOf<T>, char8_t> && requires(const T& value) {
    std::begin(value) != std::end(value);
};

} // namespace detail

// The description of a value:
// - a string (anything that converts to std::string_view) or a character: itself; a null const char* or nullptr: "nil";
// - a bool, or an element of a std::vector<bool> or std::bitset: "true" or "false"; an integer: its decimal digits;
// - a floating-point number: the fewest digits that give the same value, with a point or an exponent: "0.1", "1e+16";
//   "inf", "-inf" or "nan";
// - a type with `std::string describe(const T&)` in its namespace, even a string or sequence: what that returns;
// - an optional: "nil" or "Optional(5)", and std::nullopt: "nil"; a sequence: "[1, 2]". Texts inside are quoted: ["a"].
// A Describable borrows strings, which must outlive it. Only results of describe(), optionals and sequences allocate
// memory. If that fails, the description is empty; any other exception of a describe() propagates.
class Describable {
public:
    template <class T> Describable(const T& value) { describeGiven(value); }
    template <class T> Describable(std::initializer_list<T> values) { describeGiven(values); }

    Describable(const Describable&) = delete;
    Describable& operator=(const Describable&) = delete;

    // Valid as long as this object and a borrowed string live.
    std::string_view text() const noexcept { return text_; }

private:
    Describable() = default;

    template <class T> void describeGiven(const T& value) {
        try {
            describeValue(value);
        } catch (const std::bad_alloc&) {
            text_ = {};
        }
    }
    template <class Given> void describeValue(const Given& value) {
        using T = std::remove_cv_t<Given>; // `value` may be volatile
        if constexpr (std::same_as<T, bool>)
            text_ = value ? "true" : "false";
        else if constexpr (detail::BoolProxy<T> && !detail::DescribesItself<T>)
            describeValue(static_cast<bool>(value));
        else if constexpr (detail::NarrowCharacter<T>)
            borrow(detail::byteText(static_cast<char>(value), buffer_));
        else if constexpr (detail::WideCharacter<T>)
            borrow(detail::characterText(static_cast<std::uint32_t>(value), buffer_));
        else if constexpr (std::signed_integral<T> && sizeof(T) <= sizeof(std::int64_t))
            text_ = detail::integerText(value, buffer_);
        else if constexpr (std::unsigned_integral<T> && sizeof(T) <= sizeof(std::uint64_t))
            text_ = detail::unsignedText(value, buffer_);
        else if constexpr (std::floating_point<T>)
            text_ = detail::floatingText(value, buffer_);
        else if constexpr (std::is_pointer_v<T> && std::convertible_to<T, const char*>)
            borrowOrNil(value);
        else if constexpr (std::is_null_pointer_v<T> || detail::isNullopt<T>())
            text_ = "nil";
        else if constexpr (detail::DescribesItself<T>)
            text_ = owned_ = describe(value);
        else if constexpr (std::convertible_to<const T&, std::string_view>)
            borrow(value);
        else if constexpr (detail::OptionalLike<T> || detail::Sequence<T>) {
            appendParts(value);
            text_ = owned_;
        } else
            static_assert(!sizeof(T*), "a value of this type has no description: declare "
                                       "`std::string describe(const T&)` in the namespace of the type");
    }
    void borrow(std::string_view text) noexcept {
        text_ = text;
        isText_ = true;
    }
    void borrowOrNil(const char* text) noexcept {
        if (text == nullptr)
            text_ = "nil";
        else
            borrow(text);
    }

    template <class T> void appendParts(const T& value) {
        if constexpr (detail::OptionalLike<T>) {
            if (!value.has_value()) {
                owned_ += "nil";
                return;
            }
            owned_ += "Optional(";
            appendInner(*value);
            owned_ += ')';
        } else {
            const char* separator = "[";
            for (const auto& element : value) {
                owned_ += separator;
                separator = ", ";
                appendInner(element);
            }
            owned_ += *separator == '[' ? "[]" : "]";
        }
    }
    template <class T> void appendInner(const T& value) {
        Describable inner;
        inner.describeValue(value);
        if (inner.isText_)
            detail::appendQuoted(owned_, inner.text_);
        else
            owned_ += inner.text_;
    }

    std::string_view text_;
    bool isText_ = false; // a string or a character, which is quoted inside another description
    char buffer_[detail::scalarTextSize];
    std::string owned_;
};

} // namespace Foundation
