// Runs during the build: writes one of the generated files to standard output.
#include "Precompute/Precompute.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <unicode/uversion.h>

namespace Intl::Precompute {

void fail(const std::string& message) {
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(1);
}

std::size_t Pool::add(const std::string& text) {
    const auto [at, isNew] = offsets_.emplace(text, all_.size());
    if (isNew)
        all_.append(text) += '\0';
    return at->second;
}

std::string Pool::definition(const std::string& name) const {
    constexpr std::size_t perLine = 24;
    if (all_.size() > std::numeric_limits<std::uint16_t>::max())
        fail(std::to_string(all_.size()) + " bytes of " + name + " do not fit into 16-bit offsets");
    std::string out = "constexpr char " + name + "[] =";
    for (std::size_t i = 0; i < all_.size(); ++i) {
        char escape[sizeof "\\000"];
        std::snprintf(escape, sizeof escape, "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(all_[i])));
        const bool isLast = i % perLine == perLine - 1 || i + 1 == all_.size();
        out.append(i % perLine == 0 ? "\n    \"" : "").append(escape).append(isLast ? "\"" : "");
    }
    return out + ";\n";
}

} // namespace Intl::Precompute

int main(int count, char** arguments) {
    using namespace Intl::Precompute;
    const std::string what = count == 2 ? arguments[1] : "";
    std::string text;
    if (what == "Precomputed")
        text = locales();
    else if (what == "PluralRules")
        text = pluralRules();
    else if (what == "ScriptVariants")
        text = scriptVariants();
    else
        fail("expected Precomputed, PluralRules or ScriptVariants");
    std::printf("// Generated from ICU %s; do not edit.\n%s", U_ICU_VERSION, text.c_str());
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
