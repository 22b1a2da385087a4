// Generator/NamesFile.h
// Accessor names chosen by the team: a string table that maps "TABLE/KEY" to the accessor's dotted path below the
// table's namespace.
//     "Localizable/Ban %@" = "Moderation.banUser";
// Text: UTF-8. Threads: one at a time.
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
    // An unreadable file is an error. A path is invalid unless Namer::isCppSpelling() accepts its last part and
    // Namer::isNamespaceSpelling() the others; then there is a warning, and the key gets the name by the rule.
    [[nodiscard]] static NamesFile read(const std::filesystem::path& file, SourceBundle::Diagnostics& diagnostics);

    // The parts of the path, groups first; null if the file has no valid path for the key. Marks the path as used.
    [[nodiscard]] const std::vector<std::string>* find(std::string_view table, std::string_view key);
    // Warns about valid paths that are not used, because their keys are not in the development texts of a table with
    // accessors.
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
