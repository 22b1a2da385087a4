#include "Intl/Intl.h"

#include "Intl/KnownNumbers.h"
#include "Runtime/Companion.h"
#include "Runtime/OnceSlot.h"
#include "Runtime/Passing.h"
#include <utility>

namespace Intl {

const Services* services() {
    static constinit Runtime::OnceSlot<const Services*> slot;
    return slot.get([]() -> const Services* {
        const auto entry = Runtime::companionSymbol("lumora-intl.so", "lumoraIntlServices");
        if (entry)
            return reinterpret_cast<const Services* (*)()>(*entry)();
        Runtime::throwIfPassing(entry.error());
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
