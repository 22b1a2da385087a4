#include "Runtime/internal/PublishedClasses.h"

#include "Runtime/internal/ElfNotes.h"
#include <cstdint>
#include <dlfcn.h>

namespace Runtime {

namespace {

constexpr std::string_view owner("Lumora", sizeof "Lumora"); // with its NUL, as LUMORA_PUBLISH_CLASS writes it
constexpr ElfW(Word) classNote = 1;

struct Visitor {
    bool (*visit)(void* context, const Class& published);
    void* context;
};

// The content of a class's note is the address of a pointer to the class, relative to the content.
const Class& classAt(const char* content) noexcept {
    std::int32_t distance = 0;
    std::memcpy(&distance, content, sizeof distance);
    const Class* published = nullptr;
    std::memcpy(&published, content + distance, sizeof published); // NOLINT(bugprone-sizeof-expression): a pointer
    return *published;
}

// False for an object that another thread is still loading: its pointers may not be relocated yet.
bool isLoaded(const char* place) noexcept {
    dl_find_object found{};
    return ::_dl_find_object(const_cast<char*>(place), &found) == 0;
}

// Callback of dl_iterate_phdr: a result other than 0 ends the iteration.
int visitObject(dl_phdr_info* object, std::size_t, void* context) noexcept {
    const Visitor& visitor = *static_cast<const Visitor*>(context);
    return visitNotes(*object, [&](const ElfNote& note) {
        return note.type == classNote && note.owner == owner && note.content.size() == sizeof(std::int32_t) &&
               isLoaded(note.content.data()) && visitor.visit(visitor.context, classAt(note.content.data()));
    });
}

} // namespace

void visitPublished(bool (*visit)(void* context, const Class& published), void* context) noexcept {
    Visitor visitor{visit, context};
    ::dl_iterate_phdr(&visitObject, &visitor);
}

} // namespace Runtime
