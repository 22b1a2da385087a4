// Check/Settings.h
// Which rules are switched off where: for a run; for a source folder, or a language or an asset in it, by its
// lumora-check.json; for one key by a comment, "lumora: allow RULE, RULE".
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
    // `disabled` is off everywhere; each folder's settings file, if there is one, is for the files in that folder. A
    // file that is not what it should be is an error, an unknown rule in it a warning.
    [[nodiscard]] static Settings read(std::span<const std::filesystem::path> folders, RuleSet disabled,
                                       SourceBundle::Diagnostics& diagnostics);

    [[nodiscard]] bool isOn(const Finding& finding) const;

private:
    using Rules = std::map<std::string, RuleSet>; // by name
    struct Folder {
        std::string prefix; // of the files in it
        RuleSet disabled;
        Rules byLanguage;
        Rules byAsset;
    };
    static Folder readFolder(const std::filesystem::path& folder, SourceBundle::Diagnostics& diagnostics);

    RuleSet disabled_;
    std::vector<Folder> folders_;
};

// The rules that a comment allows. Names that are no rules go to `unknown`.
RuleSet allowedBy(std::string_view comment, std::vector<std::string_view>* unknown = nullptr);

} // namespace Check
