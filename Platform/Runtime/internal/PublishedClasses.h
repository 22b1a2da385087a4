// Runtime/internal/PublishedClasses.h
// The classes that loaded libraries and the program publish with LUMORA_PUBLISH_CLASS.
// Threads: any; each function holds the dynamic linker's lock while it runs.
#pragma once

#include "Runtime/Class.h"
#include <memory> // std::addressof

namespace Runtime {

// Calls `visit(context, published)` for each published class until `visit` returns true.
void visitPublished(bool (*visit)(void* context, const Class& published), void* context) noexcept;

// The first published class for which `matches` holds, or null.
template <class Matches> const Class* findPublished(Matches matches) noexcept {
    struct Search {
        Matches& matches;
        const Class* found = nullptr;
    } search{matches};
    visitPublished(
        [](void* context, const Class& published) {
            Search& running = *static_cast<Search*>(context);
            if (running.matches(published))
                running.found = &published;
            return running.found != nullptr;
        },
        std::addressof(search));
    return search.found;
}

} // namespace Runtime
