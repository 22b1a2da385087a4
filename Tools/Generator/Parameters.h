// Generator/Parameters.h
// The parameters that a text's accessor takes.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include <cstddef>
#include <string>
#include <vector>

namespace Generator {

enum class Parameter { text, integer, number };

inline constexpr std::size_t maxParameters = 64;

struct Parameters {
    std::vector<Parameter> all;  // in the order of positions or of appearance
    std::string fault;           // why the text can have no accessor ("mixes ..."), or empty
    bool hasLonePercent = false; // a '%' begins no placeholder
};

// Of the placeholders in the entry's text.
[[nodiscard]] Parameters parametersOf(const SourceBundle::SourceEntry& entry);

} // namespace Generator
