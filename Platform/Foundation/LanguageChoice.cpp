#include "Foundation/internal/LanguageChoice.h"

#include "Intl/internal/Intl.h"
#include "Intl/internal/ScriptVariants.h"
#include <algorithm>
#include <optional>
#include <string_view>

namespace Foundation::detail {

namespace {

std::string_view languageOf(std::string_view tag) {
    return tag.substr(0, tag.find('-'));
}

// Whether the tag consists of a language and a region, such as "de-AT".
bool isLanguageAndRegion(std::string_view tag) {
    const std::string_view region = tag.substr(std::min(languageOf(tag).size() + 1, tag.size()));
    return region.size() == 2 ||
           (region.size() == 3 && region.find_first_not_of("0123456789") == std::string_view::npos);
}

// The common cases, which do not need ICU: the exact tag, or for a tag with a region ("de-AT") the language itself
// ("de") if no other variant of it is supported and all regions use the same script.
std::optional<std::size_t> chooseByTag(std::string_view wanted, std::span<const std::string> supported) {
    if (const auto same = std::ranges::find(supported, wanted); same != supported.end())
        return same - supported.begin();
    const std::string_view language = languageOf(wanted);
    const auto isVariant = [&](const std::string& tag) { return languageOf(tag) == language; };
    const auto only = std::ranges::find(supported, language);
    if (only == supported.end() || std::ranges::count_if(supported, isVariant) != 1 || !isLanguageAndRegion(wanted) ||
        Intl::isWrittenInSeveralScripts(language))
        return std::nullopt;
    return only - supported.begin();
}

} // namespace

std::optional<std::size_t> chooseLanguage(std::string_view wanted, std::span<const std::string> supported) {
    if (const auto index = chooseByTag(wanted, supported))
        return index;
    return Intl::matchLanguage(wanted, supported);
}

} // namespace Foundation::detail
