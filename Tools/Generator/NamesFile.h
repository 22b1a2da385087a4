// Generator/NamesFile.h
// The names that a team gives to keys itself: a string table from "TABLE/KEY" to the accessor's dotted path below the
// table's namespace.
//     "Localizable/Ban %@" = "Moderation.banUser";
// Text: UTF-8. Threads: plain values.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Generator {

class NamesFile {
public:
    // No names.
    NamesFile() = default;
    // A file that cannot be read is an error. A path that is not made of C++ names is a warning, and its key is named
    // by the rule.
    [[nodiscard]] static NamesFile read(const std::filesystem::path& file, SourceBundle::Diagnostics& diagnostics);

    // The parts of the path, groups first; null if the file does not name the key.
    [[nodiscard]] const std::vector<std::string>* find(std::string_view table, std::string_view key);
    // Warns of the names that find() has not been asked for: no table has their keys.
    void reportUnused(SourceBundle::Diagnostics& diagnostics) const;

private:
    struct Name {
        std::vector<std::string> path;
        Runtime::Error place; // without a message
        bool isUsed = false;
    };

    std::map<std::string, Name, std::less<>> names_; // by "TABLE/KEY"
};

} // namespace Generator
