// Intl/Precompute/Precompute.h
// The build-time program that turns ICU's data into C++ code that the library's sources include.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace Intl::Precompute {

// Each returns the text of a file, or calls fail().
std::string locales();        // Precomputed.inc: number patterns and forms of years
std::string pluralRules();    // PluralRules.inc
std::string scriptVariants(); // ScriptVariants.inc

// Prints the message and stops the program.
[[noreturn]] void fail(const std::string& message);

// Concatenates distinct strings, each with a NUL at its end.
class Pool {
public:
    // Adds the text if the pool does not have it. Returns its offset.
    std::size_t add(const std::string& text);
    // The C++ definition of the constant `name` with all strings. Calls fail() if the offsets do not fit into 16 bits.
    std::string definition(const std::string& name) const;

private:
    std::map<std::string, std::size_t> offsets_;
    std::string all_;
};

} // namespace Intl::Precompute
