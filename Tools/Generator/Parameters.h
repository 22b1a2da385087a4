// Generator/Parameters.h
// The parameters of a text's accessor.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include <cstddef>
#include <string>
#include <vector>

namespace Generator {

// number: a floating-point number.
enum class Parameter { text, integer, number };

inline constexpr std::size_t maxParameters = 64;

struct Parameters {
    std::vector<Parameter> all;  // by position
    std::string fault;           // why the text cannot have an accessor ("mixes ..."), or empty
    bool hasLonePercent = false; // some '%' does not begin a placeholder
    std::string unknownVariable; // a plural variable that the text names but does not have, or empty
};

// The parameters for the placeholders in the entry's text.
[[nodiscard]] Parameters parametersOf(const SourceBundle::SourceEntry& entry);

} // namespace Generator
