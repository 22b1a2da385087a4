// Tests/Generator/Tables.h
// Tables and diagnostics as tests write them down.
#pragma once

#include "SourceBundle/Tables.h"
#include <string>
#include <vector>

namespace Support {

// A table in text form, as if read from "NAME.strings".
inline SourceBundle::SourceTable table(const std::string& name, const std::string& text) {
    return {name, name + ".strings", *StringTables::Table::read(text)};
}

inline std::vector<std::string> texts(const SourceBundle::Diagnostics& diagnostics) {
    std::vector<std::string> all;
    for (const auto& [severity, what] : diagnostics.all()) {
        constexpr const char* words[] = {"note: ", "warning: ", "error: "};
        all.push_back(words[static_cast<int>(severity)] + what.text());
    }
    return all;
}

} // namespace Support
