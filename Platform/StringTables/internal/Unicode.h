// StringTables/internal/Unicode.h
// Validates, converts and cuts UTF-8. Threads: any; no state.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace StringTables::internal {

// The offset of the first byte that is not part of a well-formed character, or npos.
[[nodiscard]] std::size_t firstInvalidUtf8(std::string_view bytes) noexcept;

[[nodiscard]] inline bool isUtf8(std::string_view bytes) noexcept {
    return firstInvalidUtf8(bytes) == bytes.npos;
}

// Whether `byte` is the first byte of a character, in well-formed UTF-8.
constexpr bool beginsCharacter(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

constexpr std::size_t countCharacters(std::string_view utf8) noexcept {
    return static_cast<std::size_t>(std::ranges::count_if(utf8, beginsCharacter));
}

// The complete characters in the first `size` bytes of `utf8`.
constexpr std::string_view cutToSize(std::string_view utf8, std::size_t size) noexcept {
    if (size >= utf8.size())
        return utf8;
    while (size > 0 && !beginsCharacter(utf8[size]))
        --size;
    return utf8.substr(0, size);
}

// Writes `code`, a scalar value, at `out` (at most 4 bytes) and returns the end.
[[nodiscard]] char* putUtf8(char* out, char32_t code) noexcept;

constexpr bool isHighSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLowSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit < 0xE000;
}
constexpr bool isSurrogate(char32_t unit) noexcept {
    return isHighSurrogate(unit) || isLowSurrogate(unit);
}
// Whether `code` is a scalar value: the code of a character.
constexpr bool isScalar(char32_t code) noexcept {
    return code <= 0x10FFFF && !isSurrogate(code);
}
constexpr char32_t joinSurrogates(char32_t high, char32_t low) noexcept {
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

enum class ByteOrder { little, big };

struct Decoded {
    char* end;        // of what was written
    std::size_t read; // bytes of UTF-16 used: all of them, or those before a lone surrogate or half a unit
};
// UTF-16 to UTF-8. `out` has room for three bytes per unit.
[[nodiscard]] Decoded decodeUtf16(std::string_view bytes, ByteOrder order, char* out) noexcept;

// Removes the first character of `utf8`, which must be well-formed and not empty, and returns it.
[[nodiscard]] char32_t takeCharacter(std::string_view& utf8) noexcept;

struct Character {
    char32_t code;
    std::string_view bytes;
};

// The same, but also returns the bytes of the character.
[[nodiscard]] inline Character takeCharacterWithBytes(std::string_view& utf8) noexcept {
    const std::string_view before = utf8;
    const char32_t code = takeCharacter(utf8);
    return {code, before.substr(0, before.size() - utf8.size())};
}

// `utf8` must be well-formed.
[[nodiscard]] std::u16string toUtf16(std::string_view utf8);

} // namespace StringTables::internal
