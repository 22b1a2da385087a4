// Check/Settings.h
// Which rules are disabled: everywhere, by the caller; in a source folder, or for a language or asset in it, by the
// folder's lumora-check.json; for one key, by its comment "lumora: allow RULE, RULE".
// Threads: any, immutable once read.
#pragma once

#include "Check/Finding.h"
#include "Check/Rules.h"
#include <bitset>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Check {

using RuleSet = std::bitset<ruleCount>;

inline constexpr std::string_view settingsFileName = "lumora-check.json";

class Settings {
public:
    // `disabled` applies everywhere; the settings file of a folder, if there is one, applies to the files in that
    // folder. An invalid settings file is an error, an unknown member or rule in it a warning.
    [[nodiscard]] static Settings read(std::span<const std::filesystem::path> folders, RuleSet disabled,
                                       SourceBundle::Diagnostics& diagnostics);

    // Whether the finding is to be reported. Comments are not considered.
    [[nodiscard]] bool isOn(const Finding& finding) const;

private:
    using RulesByName = std::map<std::string, RuleSet>; // by language or asset
    struct Folder {
        std::string prefix; // of the paths in it: its own path and "/"
        RuleSet disabled;
        RulesByName byLanguage;
        RulesByName byAsset;
    };
    static Folder readFolder(const std::filesystem::path& folder, SourceBundle::Diagnostics& diagnostics);

    RuleSet disabled_;
    std::vector<Folder> folders_;
};

// The rules that a comment allows. If the first word after "allow", or after a comma, is not a rule, it is added to
// `unknown`, unless that is null.
RuleSet allowedBy(std::string_view comment, std::vector<std::string_view>* unknown = nullptr);

} // namespace Check
