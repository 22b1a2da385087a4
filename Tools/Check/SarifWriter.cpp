// Writes findings as SARIF.
#include "Check/Writers.h"

#include "Generator/CodeText.h"
#include "SourceBundle/MessageText.h"
#include <algorithm>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>

namespace Check {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

namespace {

std::string percentEncoded(std::string_view path) {
    constexpr std::string_view plain = "-._~/!$&'()*+,;=@"; // allowed by RFC 3986, except ':', which could end a scheme
    std::string uri;
    for (const char c : path) {
        const bool isPlain =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || plain.find(c) != plain.npos;
        char code[4];
        std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned char>(c));
        uri.append(isPlain ? std::string_view(&c, 1) : std::string_view(code, 3));
    }
    return uri;
}

std::string uriOf(const fs::path& file, const fs::path& folder) {
    const fs::path whole = (folder / file).lexically_normal();
    const fs::path relative = whole.lexically_relative(folder);
    const bool isInside = !relative.empty() && *relative.begin() != "..";
    return isInside ? percentEncoded(relative.generic_string()) : "file://" + percentEncoded(whole.generic_string());
}

Json rulesJson() {
    Json rules = Json::array();
    for (const RuleInfo& rule : allRules())
        rules.push_back({{"id", rule.name},
                         {"shortDescription", {{"text", rule.summary}}},
                         {"help", {{"text", rule.help}}},
                         {"defaultConfiguration", {{"level", nameOf(rule.severity)}}}});
    return rules;
}

class Results {
public:
    explicit Results(const fs::path& folder) : folder_(folder.lexically_normal()) {}

    Json resultOf(const Finding& finding) {
        const RuleInfo& rule = infoOf(finding.rule);
        const std::string uri = uriOf(finding.file, folder_);
        Json place = {{"artifactLocation", {{"uri", uri}}}};
        if (finding.line != 0)
            place["region"] = {{"startLine", finding.line}, {"startColumn", std::max(finding.column, 1U)}};
        return {{"ruleId", rule.name},
                {"ruleIndex", static_cast<std::size_t>(finding.rule)},
                {"level", nameOf(rule.severity)},
                {"message", {{"text", finding.message}}},
                {"locations", Json::array({{{"physicalLocation", std::move(place)}}})},
                {"partialFingerprints", {{"lumora/v1", fingerprint(finding, rule, uri)}}},
                {"properties", {{"language", finding.language}, {"key", finding.subject}}}};
    }

private:
    // A hash of rule, file, language and key, so that it is the same when lines move. Findings with equal hashes are
    // numbered.
    std::string fingerprint(const Finding& finding, const RuleInfo& rule, const std::string& uri) {
        std::string identity(rule.name);
        for (const std::string& part : {uri, finding.language, finding.subject})
            identity.append(1, '\0').append(part);
        const std::string_view text = identity;
        std::string hash = Generator::fingerprint({&text, 1});
        return hash + ":" + std::to_string(++seen_[hash]);
    }

    fs::path folder_;
    std::map<std::string, int> seen_;
};

} // namespace

std::string asSarif(std::span<const Finding> findings, Severity lowest, const fs::path& folder,
                    const std::string& version) {
    Results results(folder);
    Json all = Json::array();
    for (const Finding& finding : findings)
        if (infoOf(finding.rule).severity >= lowest)
            all.push_back(results.resultOf(finding));
    const Json driver = {{"name", "lumora"}, {"version", version}, {"rules", rulesJson()}};
    const Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                      {"version", "2.1.0"},
                      {"runs", Json::array({{{"tool", {{"driver", driver}}},
                                             {"columnKind", "unicodeCodePoints"},
                                             {"results", std::move(all)}}})}};
    // Paths may be invalid UTF-8, which dump() would otherwise reject.
    return log.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace Check
