#include "Intl/Intl.h"

#include "Runtime/Companion.h"
#include "Runtime/OnceSlot.h"

namespace Intl {

const Services* services() {
    static constinit Runtime::OnceSlot<const Services*> slot;
    return slot.get([]() -> const Services* {
        void* entry = Runtime::companionSymbol("lumora-intl.so", "lumoraIntlServices");
        return entry == nullptr ? nullptr : reinterpret_cast<const Services* (*)()>(entry)();
    });
}

} // namespace Intl
