// Check/Report.h
// Collects findings and drops those of disabled rules.
// Threads: one thread per report; several reports may share their settings. Ownership: the settings must outlive it.
#pragma once

#include "Check/Finding.h"
#include "Check/Settings.h"
#include "SourceBundle/Source.h"
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Check {

class Report {
public:
    explicit Report(const Settings& settings) : settings_(settings) {}

    void add(Finding finding) {
        if (settings_.isOn(finding))
            findings_.push_back(std::move(finding));
    }
    // Adds a finding about a text, unless its comment or that of the `development` text (which may be null) allows the
    // rule.
    void add(Rule rule, const SourceBundle::SourceEntry& entry, std::string_view language, std::string message,
             const SourceBundle::SourceEntry* development = nullptr) {
        if (isAllowed(rule, entry) || (development != nullptr && isAllowed(rule, *development)))
            return;
        // A string catalog has the texts of all languages at the same place.
        if (entry.file->kind == SourceBundle::TableFile::Kind::catalog)
            message.insert(0, std::string(language) + ": ");
        add({rule, entry.file->path, entry.line, entry.column, std::string(language), std::string(entry.key),
             std::move(message)});
    }

    // Warns about unknown rule names in the entry's comment.
    void checkComment(const SourceBundle::SourceEntry& entry) {
        if (entry.comment.empty())
            return;
        std::vector<std::string_view> unknown;
        allowedBy(entry.comment, &unknown);
        for (const std::string_view name : unknown)
            warnings_.push_back(entry.error("the comment allows the unknown rule \"" + std::string(name) + "\""));
    }

    [[nodiscard]] std::vector<Finding> take() { return std::move(findings_); }
    [[nodiscard]] std::vector<Runtime::Error> takeWarnings() { return std::move(warnings_); }

    [[nodiscard]] static bool isAllowed(Rule rule, const SourceBundle::SourceEntry& entry) {
        return !entry.comment.empty() && allowedBy(entry.comment)[static_cast<std::size_t>(rule)];
    }

private:
    const Settings& settings_;
    std::vector<Finding> findings_;
    std::vector<Runtime::Error> warnings_; // about unknown rules in comments
};

} // namespace Check
