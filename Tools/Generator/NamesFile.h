// Generator/NamesFile.h
// Accessor names chosen by the team: a string table that maps "TABLE/KEY" to the accessor's dotted path below the
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
    // An unreadable file is an error. A path with a part that Namer rejects as a C++ spelling (the last one) or as a
    // namespace is a warning, and the key gets the name by the rule.
    [[nodiscard]] static NamesFile read(const std::filesystem::path& file, SourceBundle::Diagnostics& diagnostics);

    // The parts of the path, groups first; null if the file does not mention the key.
    [[nodiscard]] const std::vector<std::string>* find(std::string_view table, std::string_view key);
    // Warns about keys for which find() was never called, because they are not in the development texts of a table with
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
