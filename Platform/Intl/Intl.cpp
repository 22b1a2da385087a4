#include "Intl/internal/Intl.h"

#include "Intl/internal/PrecomputedPatterns.h"
#include "Runtime/OnceSlot.h"
#include "Runtime/internal/Plugin.h"
#include "Runtime/internal/TransientError.h"
#include <utility>

namespace Intl {

const Services* services() {
    static constinit Runtime::OnceSlot<const Services*> slot;
    return slot.get([]() -> const Services* {
        const auto entry = Runtime::pluginSymbol("lumora-intl.so", "lumoraIntlServices");
        if (entry)
            return reinterpret_cast<const Services* (*)()>(*entry)();
        Runtime::throwIfTransient(entry.error());
        return nullptr;
    });
}

NumberPattern numberPattern(std::string_view locale, NumberStyle style) {
    if (auto known = knownNumberPattern(locale, style))
        return *std::move(known);
    const Services* const all = services();
    return all != nullptr ? all->numberPattern(locale, style) : plainNumberPattern(style);
}

} // namespace Intl
