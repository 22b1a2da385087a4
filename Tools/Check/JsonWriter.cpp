// Writes findings as JSON.
#include "Check/Writers.h"

#include "SourceBundle/MessageText.h"
#include <nlohmann/json.hpp>

namespace Check {

using Json = nlohmann::ordered_json;

std::string asJson(std::span<const Finding> findings, Severity lowest) {
    Json all = Json::array();
    for (const Finding& finding : findings) {
        const RuleInfo& rule = infoOf(finding.rule);
        if (rule.severity >= lowest)
            all.push_back({{"rule", rule.name},
                           {"severity", nameOf(rule.severity)},
                           {"file", finding.file},
                           {"line", finding.line},
                           {"column", finding.column},
                           {"language", finding.language},
                           {"key", finding.subject},
                           {"message", finding.message}});
    }
    // Paths may be invalid UTF-8, which dump() would otherwise reject.
    return all.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace Check
