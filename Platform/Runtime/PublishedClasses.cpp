#include "Runtime/internal/PublishedClasses.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <link.h>
#include <string_view>

namespace Runtime {

namespace {

constexpr std::string_view owner("Lumora", sizeof "Lumora"); // with its NUL, as LUMORA_PUBLISH_CLASS writes it
constexpr ElfW(Word) classNote = 1;
constexpr std::size_t noteAlignment = 4;

struct Visitor {
    bool (*visit)(void* context, const Class& published);
    void* context;
};

constexpr std::size_t padded(std::size_t size) noexcept {
    return (size + noteAlignment - 1) / noteAlignment * noteAlignment;
}

// Follows the relative address in a note's content.
const Class& classAt(const char* content) noexcept {
    std::int32_t distance = 0;
    std::memcpy(&distance, content, sizeof distance);
    const Class* published = nullptr;
    std::memcpy(&published, content + distance, sizeof published);
    return *published;
}

// Visits the classes of the notes in [note, end). Returns whether the visitor stopped.
bool visitNotes(const char* note, const char* end, const Visitor& visitor) noexcept {
    ElfW(Nhdr) header;
    while (static_cast<std::size_t>(end - note) >= sizeof header) {
        std::memcpy(&header, note, sizeof header);
        const char* const name = note + sizeof header;
        const char* const content = name + padded(header.n_namesz);
        if (header.n_type == classNote && std::string_view(name, header.n_namesz) == owner &&
            visitor.visit(visitor.context, classAt(content)))
            return true;
        note = content + padded(header.n_descsz);
    }
    return false;
}

// Callback of dl_iterate_phdr: a result other than 0 ends the iteration.
int visitObject(dl_phdr_info* object, std::size_t, void* visitor) noexcept {
    for (std::size_t i = 0; i < object->dlpi_phnum; ++i) {
        const ElfW(Phdr)& segment = object->dlpi_phdr[i];
        // Notes in segments of another alignment have another layout; ours are never in those.
        if (segment.p_type != PT_NOTE || segment.p_align != noteAlignment)
            continue;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the dynamic linker gives addresses as numbers
        const auto* const begin = reinterpret_cast<const char*>(object->dlpi_addr + segment.p_vaddr);
        if (visitNotes(begin, begin + segment.p_memsz, *static_cast<const Visitor*>(visitor)))
            return 1;
    }
    return 0;
}

} // namespace

void visitPublished(bool (*visit)(void* context, const Class& published), void* context) noexcept {
    Visitor visitor{visit, context};
    ::dl_iterate_phdr(&visitObject, &visitor);
}

} // namespace Runtime
