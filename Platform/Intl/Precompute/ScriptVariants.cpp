// Generates the list of languages whose regions use different scripts.
#include "Precompute/Precompute.h"

#include <array>
#include <unicode/uloc.h>

namespace Intl::Precompute {

namespace {

// Empty when ICU does not know the locale.
std::string likelyScript(const std::string& locale) {
    std::array<char, ULOC_FULLNAME_CAPACITY> full{};
    std::array<char, ULOC_SCRIPT_CAPACITY> script{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_addLikelySubtags(locale.c_str(), full.data(), full.size(), &status);
    uloc_getScript(full.data(), script.data(), script.size(), &status);
    return U_SUCCESS(status) ? script.data() : "";
}

bool differsByRegion(const std::string& language) {
    const std::string usual = likelyScript(language);
    if (usual.empty())
        return false;
    for (const char* const* region = uloc_getISOCountries(); *region != nullptr; ++region)
        if (likelyScript(language + "_" + *region) != usual)
            return true;
    return false;
}

} // namespace

std::string scriptVariants() {
    std::string list;
    for (const char* const* language = uloc_getISOLanguages(); *language != nullptr; ++language)
        if (differsByRegion(*language))
            list += std::string("    \"") + *language + "\",\n";
    if (list.empty())
        fail("ICU lists no language whose regions use different scripts");
    return "constexpr std::string_view severalScripts[] = {\n" + list + "};\n";
}

} // namespace Intl::Precompute
