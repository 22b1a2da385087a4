// Exchange/Targets.h
// The files that translations are written to.
#pragma once

#include "Exchange/KeyUnits.h"
#include "Exchange/TableDocument.h"
#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace Exchange {

class Targets {
public:
    // apply() changes the string catalogs in `texts`.
    Targets(const SourceBundle::Source& source, StoredTexts& texts) : source_(source), texts_(texts) {}

    // Changes the key in memory: in the file that has its translation or to which it can be added, else in a new one.
    [[nodiscard]] Runtime::Result<void> apply(const Key& key, const Change& change);
    // Writes the changed files, either all or none. Returns their number.
    [[nodiscard]] Runtime::Result<std::size_t> write();

private:
    struct Target {
        std::unique_ptr<TableDocument> own; // null for a string catalog, which is in `texts_`
        TableDocument* document = nullptr;  // `own` or that catalog; null if the file could not be read
        bool isChanged = false;
    };
    // For a key without a file: "de.lproj/T.strings" beside "en.lproj/T.strings" with the development text.
    std::filesystem::path newPath(const Key& key);
    // The file for the key, read or made when first needed.
    Runtime::Result<Target*> targetOf(const Key& key);

    const SourceBundle::Source& source_;
    StoredTexts& texts_;
    std::map<std::filesystem::path, Target> targets_;
    // For each language: its folders, by the folder that contains them.
    std::map<std::string, std::map<std::filesystem::path, std::filesystem::path>> folders_;
};

} // namespace Exchange
