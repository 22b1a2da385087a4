#include "Check/Settings.h"

#include "Check/Characters.h"
#include "Runtime/internal/File.h"
#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace Check {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using SourceBundle::Diagnostics;

namespace {

constexpr std::size_t maxSettingsBytes = std::size_t{1} << 20;
constexpr std::string_view allowMark = "lumora: allow";

void add(RuleSet& rules, Rule rule) {
    rules.set(static_cast<std::size_t>(rule));
}

// Reads one settings file; messages name it.
class SettingsReader {
public:
    SettingsReader(fs::path file, Diagnostics& diagnostics) : file_(std::move(file)), diagnostics_(diagnostics) {}

    // Null if there is no file, or after an error.
    Json parsed() {
        std::error_code failed;
        if (!fs::exists(fs::symlink_status(file_, failed)))
            return {};
        auto text = Runtime::readFile(file_, maxSettingsBytes);
        if (!text) {
            diagnostics_.add(Severity::error, std::move(text.error()));
            return {};
        }
        Json json = Json::parse(*text, nullptr, false);
        if (!json.is_object()) {
            report(Severity::error, json.is_discarded() ? "invalid JSON" : "is not an object");
            return {};
        }
        for (const auto& [name, value] : json.items())
            if (name != "disable" && name != "languages" && name != "assets")
                report(Severity::warning, "unknown member \"" + name + "\"");
        return json;
    }

    // The rules whose names are in the list `json`, the value of `member`.
    RuleSet rules(const Json& json, const std::string& member) {
        RuleSet rules;
        const auto reportNoList = [&] { report(Severity::error, "\"" + member + "\" is not a list of rule names"); };
        if (!json.is_array())
            reportNoList();
        else
            for (const Json& name : json)
                if (!name.is_string())
                    reportNoList();
                else if (const auto rule = ruleNamed(name.get_ref<const std::string&>()))
                    add(rules, *rule);
                else
                    report(Severity::warning, "unknown rule \"" + name.get<std::string>() + "\"");
        return rules;
    }

    // The rules in the lists of the object `name`, by language or asset.
    std::map<std::string, RuleSet> rulesByName(const Json& json, const char* name) {
        std::map<std::string, RuleSet> all;
        if (!json.contains(name))
            return all;
        if (!json[name].is_object())
            report(Severity::error, "\"" + std::string(name) + "\" is not an object");
        else
            for (const auto& [member, list] : json[name].items())
                all[member] = rules(list, member);
        return all;
    }

    void report(Severity severity, std::string message) {
        diagnostics_.add(severity, {.message = std::move(message), .file = file_});
    }

private:
    fs::path file_;
    Diagnostics& diagnostics_;
};

} // namespace

Settings Settings::read(std::span<const fs::path> folders, RuleSet disabled, Diagnostics& diagnostics) {
    Settings settings;
    settings.disabled_ = disabled;
    for (const fs::path& folder : folders)
        settings.folders_.push_back(readFolder(folder, diagnostics));
    return settings;
}

Settings::Folder Settings::readFolder(const fs::path& folder, Diagnostics& diagnostics) {
    SettingsReader reader(folder / settingsFileName, diagnostics);
    const Json json = reader.parsed();
    return {.prefix = (folder / "").string(),
            .disabled = json.contains("disable") ? reader.rules(json["disable"], "disable") : RuleSet(),
            .byLanguage = reader.rulesByName(json, "languages"),
            .byAsset = reader.rulesByName(json, "assets")};
}

bool Settings::isOn(const Finding& finding) const {
    const auto number = static_cast<std::size_t>(finding.rule);
    const auto has = [&](const RulesByName& rules, const std::string& name) {
        const auto found = rules.find(name);
        return found != rules.end() && found->second[number];
    };
    // A finding without a language is about an asset, or a key of a string catalog in all languages.
    const auto isOff = [&](const Folder& folder) {
        return folder.disabled[number] || (finding.language.empty() ? has(folder.byAsset, finding.subject)
                                                                    : has(folder.byLanguage, finding.language));
    };
    return !disabled_[number] && std::ranges::none_of(folders_, [&](const Folder& folder) {
        return finding.file.starts_with(folder.prefix) && isOff(folder);
    });
}

RuleSet allowedBy(std::string_view comment, std::vector<std::string_view>* unknown) {
    constexpr std::string_view separators = ", \t", wordEnds = ", \t\r\n";
    constexpr std::string_view nameCharacters = "abcdefghijklmnopqrstuvwxyz-";
    RuleSet rules;
    for (std::size_t mark = findPart(comment, allowMark); mark != comment.npos;
         mark = findPart(comment, allowMark, mark)) {
        mark += allowMark.size();
        // Whether the next word must be a rule: it is the first or follows a comma. Other words may be prose.
        bool isListed = true;
        for (std::string_view rest = comment.substr(mark); !rest.empty();) {
            const std::size_t begin = std::min(rest.find_first_not_of(separators), rest.size());
            isListed |= rest.substr(0, begin).find(',') != rest.npos;
            rest.remove_prefix(begin);
            const std::string_view name = rest.substr(0, rest.find_first_not_of(nameCharacters));
            const auto rule = ruleNamed(name);
            if (rule)
                add(rules, *rule);
            else if (isListed && unknown != nullptr)
                unknown->push_back(rest.substr(0, rest.find_first_of(wordEnds)));
            if (!rule)
                break;
            rest.remove_prefix(name.size());
            isListed = false;
        }
    }
    return rules;
}

} // namespace Check
