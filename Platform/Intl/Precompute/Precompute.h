// Intl/Precompute/Precompute.h
// What the build-time program writes down of ICU's data, and its means: C++ for the library's sources to include.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace Intl::Precompute {

// Each returns the text of a file, or stops the program with a message.
std::string locales();
std::string pluralRules();
std::string scriptVariants();

[[noreturn]] void fail(const std::string& message);

// Texts one behind the other, each once, each with a NUL at its end.
class Pool {
public:
    std::size_t offsetOf(const std::string& text);
    // The definition of the constant `name` with all texts. Fails when offsets do not fit into 16 bits.
    std::string definition(const std::string& name) const;

private:
    std::map<std::string, std::size_t> offsets_;
    std::string all_;
};

} // namespace Intl::Precompute
