#include "Check/Settings.h"

#include "Runtime/internal/File.h"
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

// Reads one settings file. What is wrong with it is said with its name.
class SettingsReader {
public:
    SettingsReader(fs::path file, Diagnostics& diagnostics) : file_(std::move(file)), diagnostics_(diagnostics) {}

    // No value where there is no file, or after an error.
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
            say(Severity::error, json.is_discarded() ? "invalid JSON" : "is not an object");
            return {};
        }
        for (const auto& [name, value] : json.items())
            if (name != "disable" && name != "languages")
                say(Severity::warning, "unknown member \"" + name + "\"");
        return json;
    }

    // The rules that the list `json` names.
    RuleSet rules(const Json& json) {
        RuleSet rules;
        if (!json.is_array())
            say(Severity::error, "rules are given as a list of names");
        else
            for (const Json& name : json)
                if (!name.is_string())
                    say(Severity::error, "rules are given as a list of names");
                else if (const auto rule = ruleNamed(name.get_ref<const std::string&>()))
                    add(rules, *rule);
                else
                    say(Severity::warning, "unknown rule \"" + name.get<std::string>() + "\"");
        return rules;
    }

    void say(Severity severity, std::string message) {
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
    Folder out{.prefix = (folder / "").string(), .disabled = {}, .byLanguage = {}};
    SettingsReader reader(folder / settingsFileName, diagnostics);
    const Json json = reader.parsed();
    if (json.contains("disable"))
        out.disabled = reader.rules(json["disable"]);
    if (!json.contains("languages"))
        return out;
    if (!json["languages"].is_object())
        reader.say(Severity::error, "\"languages\" is not an object");
    else
        for (const auto& [language, rules] : json["languages"].items())
            out.byLanguage[language] = reader.rules(rules);
    return out;
}

bool Settings::isOn(Rule rule, const fs::path& file, std::string_view language) const {
    const auto number = static_cast<std::size_t>(rule);
    if (disabled_[number])
        return false;
    for (const Folder& folder : folders_) {
        if (!file.native().starts_with(folder.prefix))
            continue;
        const auto own = folder.byLanguage.find(language);
        if (folder.disabled[number] || (own != folder.byLanguage.end() && own->second[number]))
            return false;
    }
    return true;
}

RuleSet allowedBy(std::string_view comment, std::vector<std::string_view>* unknown) {
    constexpr std::string_view separators = ", \t", nameCharacters = "abcdefghijklmnopqrstuvwxyz-";
    RuleSet rules;
    for (std::size_t mark = comment.find(allowMark); mark != comment.npos; mark = comment.find(allowMark, mark)) {
        mark += allowMark.size();
        bool isListed = true; // what follows is a name: the first, or one behind a comma; otherwise it may be prose
        for (std::string_view rest = comment.substr(mark); !rest.empty();) {
            const std::size_t begin = std::min(rest.find_first_not_of(separators), rest.size());
            isListed |= rest.substr(0, begin).find(',') != rest.npos;
            rest.remove_prefix(begin);
            const std::string_view name = rest.substr(0, rest.find_first_not_of(nameCharacters));
            const auto rule = ruleNamed(name);
            if (rule)
                add(rules, *rule);
            else if (isListed && unknown != nullptr)
                unknown->push_back(name);
            if (!rule)
                break;
            rest.remove_prefix(name.size());
            isListed = false;
        }
    }
    return rules;
}

} // namespace Check
