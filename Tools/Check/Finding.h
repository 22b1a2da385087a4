// Check/Finding.h
// One fault in a source and its location.
// Text: UTF-8; paths are raw bytes. Threads: plain values.
#pragma once

#include "Check/Rules.h"
#include <cstdint>
#include <string>

namespace Check {

struct Finding {
    Rule rule;
    std::string file;
    std::uint32_t line = 0;   // counted from 1; 0 if unknown, as in a binary table
    std::uint32_t column = 0; // in characters, counted from 1; 0 if unknown
    std::string language{};   // "de", "Base"; empty for an asset, or for all languages of a string catalog
    std::string subject{};    // the key or the asset's name; empty for a whole table or file
    std::string message{};
};

} // namespace Check
