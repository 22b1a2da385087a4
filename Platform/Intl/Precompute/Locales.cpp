// Generates the table of the number patterns and year forms of all locales that ICU lists.
#include "Precompute/Precompute.h"

#include "Intl/internal/Intl.h"
#include "Intl/internal/Precomputed.h"
#include <set>
#include <type_traits>
#include <unicode/localpointer.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>

extern "C" const Intl::Services* lumoraIntlServices(); // in Intl/IcuServices.cpp

namespace Intl::Precompute {

namespace {

// Sorted; includes legacy aliases.
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

// The fields of a pattern or of year forms, as readAt() in Intl/Precomputed.cpp reads them.
template <class Value> std::string stored(const Value& value) {
    std::string out;
    Intl::detail::forEachField(value, [&out](const auto& part) {
        if constexpr (std::is_same_v<decltype(part), const unsigned&>)
            out += static_cast<char>('0' + part);
        else
            out.append(part) += '\0';
    });
    return out;
}

} // namespace

std::string locales() {
    const Services& icu = *lumoraIntlServices();
    Pool names, texts;
    std::string known;
    for (const std::string& name : localeNames()) {
        known += "    {" + std::to_string(names.add(name));
        for (const std::string& text :
             {stored(icu.numberPattern(name, NumberStyle::decimal)),
              stored(icu.numberPattern(name, NumberStyle::percent)), stored(icu.yearForms(name))})
            known += ", " + std::to_string(texts.add(text));
        known += "},\n";
    }
    return names.definition("names") + texts.definition("texts") + "constexpr Known known[] = {\n" + known + "};\n";
}

} // namespace Intl::Precompute
