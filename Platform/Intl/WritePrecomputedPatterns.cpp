// Runs during the build: writes PrecomputedPatterns.inc, the number patterns of all locales that ICU lists, to standard
// output.
#include "Intl/internal/Intl.h"
#include "Intl/internal/PrecomputedPatterns.h"
#include <array>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <unicode/localpointer.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>
#include <unicode/uversion.h>

extern "C" const Intl::Services* lumoraIntlServices();

namespace {

// In order, with the names that older systems use.
std::set<std::string> localeNames() {
    std::set<std::string> names;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer all(uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, &status));
    while (const char* name = uenum_next(all.getAlias(), nullptr, &status))
        names.insert(name);
    return U_SUCCESS(status) ? names : std::set<std::string>();
}

std::string written(const Intl::NumberPattern& pattern) {
    std::string out;
    Intl::detail::forEachPart(pattern, [&out](const auto& part) {
        if constexpr (std::is_same_v<decltype(part), const unsigned&>)
            out += static_cast<char>('0' + part);
        else
            out.append(part) += '\0';
    });
    return out;
}

// Texts one behind the other, each once.
class Pool {
public:
    std::size_t offsetOf(const std::string& text) {
        const auto [at, isNew] = offsets_.emplace(text, all_.size());
        if (isNew)
            all_ += text;
        return at->second;
    }
    std::string_view all() const noexcept { return all_; }

private:
    std::map<std::string, std::size_t> offsets_;
    std::string all_;
};

void printCharacters(const char* name, std::string_view characters) {
    std::printf("constexpr char %s[] =", name);
    for (std::size_t i = 0; i < characters.size(); ++i)
        std::printf(i % 24 == 0 ? "\n    \"\\%03o%s" : "\\%03o%s", static_cast<unsigned char>(characters[i]),
                    i % 24 == 23 || i + 1 == characters.size() ? "\"" : "");
    std::printf(";\n");
}

} // namespace

int main() {
    const std::set<std::string> locales = localeNames();
    if (locales.empty()) {
        std::fprintf(stderr, "ICU does not list its locales\n");
        return 1;
    }
    Pool names, patterns;
    std::string known;
    for (const std::string& name : locales) {
        const auto offset = [&](Intl::NumberStyle style) {
            return std::to_string(patterns.offsetOf(written(lumoraIntlServices()->numberPattern(name, style))));
        };
        known += "    {" + std::to_string(names.offsetOf(name + '\0')) + ", {" + offset(Intl::NumberStyle::decimal) +
                 ", " + offset(Intl::NumberStyle::percent) + "}},\n";
    }
    constexpr std::size_t largest = std::numeric_limits<std::uint16_t>::max();
    if (names.all().size() > largest || patterns.all().size() > largest) {
        std::fprintf(stderr, "%zu bytes of names and %zu of patterns do not fit\n", names.all().size(),
                     patterns.all().size());
        return 1;
    }
    std::printf("// As ICU %s has them; do not edit.\n", U_ICU_VERSION);
    printCharacters("names", names.all());
    printCharacters("patterns", patterns.all());
    std::printf("constexpr Known known[] = {\n%s};\n", known.c_str());
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
