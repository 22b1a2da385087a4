#include "Check/MessageFindings.h"

#include "Runtime/internal/NameMap.h"
#include "SourceBundle/SetContents.h"
#include <optional>
#include <string>
#include <vector>

namespace Check {

namespace fs = std::filesystem;
using SourceBundle::Diagnostic;
using SourceBundle::Diagnostics;
using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;
using SourceBundle::TableFile;
using SourceBundle::Topic;

namespace {

// No value if the topic has no rule, or if the checks of texts find the same fault.
std::optional<Rule> ruleFor(Topic topic) {
    switch (topic) {
    case Topic::unreadableTable:
        return Rule::unreadableTable;
    case Topic::duplicateKey:
        return Rule::duplicateKey;
    case Topic::nameClash:
        return Rule::nameClash;
    case Topic::noAccessor:
        return Rule::unnamedKey;
    case Topic::missingFile:
        return Rule::assetMissingFile;
    case Topic::unreadableAsset:
        return Rule::unreadableAsset;
    case Topic::unassignedVariant:
        return Rule::assetUnassigned;
    case Topic::duplicateVariant:
        return Rule::assetDuplicateVariant;
    case Topic::placeholder:
    case Topic::other:
        break;
    }
    return std::nullopt;
}

// Maps table files to their languages and entries.
class FileLanguages {
public:
    explicit FileLanguages(const Source& source) {
        for (const SourceTable& table : source.tables)
            for (const LanguageTexts& texts : table.languages)
                for (const TableFile* file : texts.files)
                    known_.try_emplace(file->path.native(), Known{file->kind, {}})
                        .first->second.texts.push_back(&texts);
    }

    // Empty for a string catalog, and for a file outside of language folders.
    std::string languageOf(const fs::path& file) const {
        const auto found = known_.find(file.native());
        if (found == known_.end()) // an asset, or a table that was not read
            return file.parent_path().extension() == ".lproj"
                       ? SourceBundle::languageNamed(file.parent_path().stem().string())
                       : "";
        return found->second.kind == TableFile::Kind::catalog ? "" : found->second.texts.front()->language;
    }
    // The key's entry, in a string catalog that of the first language that has it; or null.
    const SourceEntry* entryOf(const fs::path& file, std::string_view key) const {
        const auto found = known_.find(file.native());
        if (found != known_.end())
            for (const LanguageTexts* texts : found->second.texts)
                if (const SourceEntry* entry = texts->find(key))
                    return entry;
        return nullptr;
    }

private:
    struct Known {
        TableFile::Kind kind;
        std::vector<const LanguageTexts*> texts; // one, or those of all languages in a string catalog
    };
    Runtime::NameMap<Known> known_;
};

// A message about a whole set names its folder, but the finding is in the set's Contents.json. (A folder that is named
// like a table is not a set.)
Runtime::Error placeOf(const Runtime::Error& what, Topic topic) {
    std::error_code failed;
    if (topic == Topic::unreadableTable || what.line != 0 || !fs::is_directory(what.file, failed))
        return what;
    return {.message = what.message, .file = fs::path(what.file) / SourceBundle::contentsName, .line = 1, .column = 1};
}

} // namespace

void takeFindings(const Source& source, const Diagnostics& messages, Report& report, Diagnostics& others) {
    const FileLanguages languages(source);
    for (const Diagnostic& message : messages.all()) {
        const std::optional<Rule> rule = ruleFor(message.topic);
        if (!rule) {
            if (message.topic == Topic::other && message.severity != Severity::note)
                others.add(message.severity, message.what);
            continue;
        }
        const SourceEntry* entry = languages.entryOf(message.what.file, message.subject);
        if (entry != nullptr && Report::isAllowed(*rule, *entry))
            continue;
        const Runtime::Error place = placeOf(message.what, message.topic);
        report.add({.rule = *rule,
                    .file = place.file,
                    .line = static_cast<std::uint32_t>(place.line),
                    .column = static_cast<std::uint32_t>(place.column),
                    .language = languages.languageOf(message.what.file),
                    .subject = message.subject,
                    .message = message.what.message});
    }
}

} // namespace Check
