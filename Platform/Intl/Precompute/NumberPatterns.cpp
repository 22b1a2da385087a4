// The number patterns of all locales that ICU lists.
#include "Precompute/Precompute.h"

#include "Intl/internal/Intl.h"
#include "Intl/internal/PrecomputedPatterns.h"
#include <set>
#include <type_traits>
#include <unicode/localpointer.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>

extern "C" const Intl::Services* lumoraIntlServices();

namespace Intl::Precompute {

namespace {

// In order, with the names that older systems use.
std::set<std::string> localeNames() {
    std::set<std::string> names;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer all(uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, &status));
    while (const char* name = uenum_next(all.getAlias(), nullptr, &status))
        names.insert(name);
    if (U_FAILURE(status) || names.empty())
        fail("ICU does not list its locales");
    return names;
}

std::string written(const NumberPattern& pattern) {
    std::string out;
    Intl::detail::forEachPart(pattern, [&out](const auto& part) {
        if constexpr (std::is_same_v<decltype(part), const unsigned&>)
            out += static_cast<char>('0' + part);
        else
            out.append(part) += '\0';
    });
    return out;
}

} // namespace

std::string numberPatterns() {
    Pool names, patterns;
    std::string known;
    for (const std::string& name : localeNames()) {
        const auto offset = [&](NumberStyle style) {
            return std::to_string(patterns.offsetOf(written(lumoraIntlServices()->numberPattern(name, style))));
        };
        known += "    {" + std::to_string(names.offsetOf(name)) + ", {" + offset(NumberStyle::decimal) + ", " +
                 offset(NumberStyle::percent) + "}},\n";
    }
    return names.definition("names") + patterns.definition("patterns") + "constexpr Known known[] = {\n" + known +
           "};\n";
}

} // namespace Intl::Precompute
