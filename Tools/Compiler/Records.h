// Compiler/Records.h
// The lines of the mark file, which tell the next compile what it may reuse; internal to the compiler.
// Threads: pure functions; a Fields by one thread at a time.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace Compiler {

// The number in 16 lower-case hexadecimal digits; Fields::read() with the base `hexadecimal` reads it.
[[nodiscard]] std::string hex(std::uint64_t number);
inline constexpr int hexadecimal = 16;
// The hash by which the next compile finds out whether bytes in the bundle are still the same.
[[nodiscard]] std::uint64_t hashOf(std::string_view bytes) noexcept;
// A 128-bit hash, for which collisions are not expected: 32 lower-case hexadecimal digits.
[[nodiscard]] std::string longHashOf(std::string_view bytes);

// Calls use(line) for each line of `list`.
template <class Use> void eachLine(std::string_view list, const Use& use) {
    while (!list.empty()) {
        const std::size_t end = std::min(list.find('\n'), list.size());
        use(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
}

// Reads the fields of a line, which are separated by spaces, in order.
class Fields {
public:
    explicit Fields(std::string_view line) : rest_(line) {}

    // The next field; empty at the end of the line.
    std::string_view word() {
        const std::size_t end = std::min(rest_.find(' '), rest_.size());
        const std::string_view word = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return word;
    }
    // Reads the next field as a number. `base`: as for std::from_chars; none for a floating-point number.
    template <class Number, class... Base> void read(Number& number, Base... base) {
        const std::string_view text = word();
        const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number, base...);
        isSound_ = isSound_ && failure == std::errc() && end == text.data() + text.size();
    }
    // Whether all numbers were valid and no field is left.
    bool isSound() const { return isSound_ && rest_.empty(); }

private:
    std::string_view rest_;
    bool isSound_ = true;
};

} // namespace Compiler
