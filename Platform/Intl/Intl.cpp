#include "Intl/internal/Intl.h"

#include "Intl/internal/Precomputed.h"
#include "Runtime/OnceSlot.h"
#include "Runtime/internal/ForkGuard.h"
#include "Runtime/internal/Plugin.h"
#include "Runtime/internal/TransientError.h"
#include <algorithm>

namespace Intl {

namespace {

// The plug-in's services; null when it is absent or unusable. Throws on transient errors.
const Services* services(const Runtime::ForkGuard& guard) {
    static constinit Runtime::OnceSlot<const Services*> slot;
    return slot.get([&guard]() -> const Services* {
        const auto entry = Runtime::pluginSymbol(guard, "lumora-intl.so", "lumoraIntlServices");
        if (entry)
            return reinterpret_cast<const Services* (*)()>(*entry)();
        Runtime::throwIfTransient(entry.error());
        return nullptr;
    });
}

// Returns `use(services)`, or `plain()` without the plug-in.
template <class Use, class Plain> auto withServices(Use use, Plain plain) {
    const Runtime::ForkGuard guard; // ICU takes locks
    const Services* const all = services(guard);
    return all != nullptr ? use(*all) : plain();
}

// The index in `supported` of `desired`, or else of its longest prefix that ends before a '-' or '_'.
std::optional<std::size_t> matchByTruncation(std::string_view desired, std::span<const std::string> supported) {
    for (;;) {
        if (const auto found = std::ranges::find(supported, desired); found != supported.end())
            return found - supported.begin();
        const std::size_t end = desired.find_last_of("-_");
        if (end == std::string_view::npos)
            return std::nullopt;
        desired = desired.substr(0, end);
    }
}

} // namespace

std::optional<std::size_t> matchLanguage(std::string_view desired, std::span<const std::string> supported) {
    return withServices([&](const Services& all) { return all.matchLanguage(desired, supported); },
                        [&] { return matchByTruncation(desired, supported); });
}

NumberPattern numberPattern(std::string_view locale, NumberStyle style) {
    if (auto known = knownNumberPattern(locale, style))
        return *std::move(known);
    return withServices([&](const Services& all) { return all.numberPattern(locale, style); },
                        [&] { return plainNumberPattern(style); });
}

YearForms yearForms(std::string_view locale) {
    if (auto known = knownYearForms(locale))
        return *std::move(known);
    return withServices([&](const Services& all) { return all.yearForms(locale); }, [] { return YearForms(); });
}

} // namespace Intl
