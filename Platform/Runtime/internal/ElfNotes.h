// Runtime/internal/ElfNotes.h
// The notes in a loaded library or program: small records that the linker or the code itself put there.
// Text: owners and contents are bytes. Ownership: views live as long as the library.
#pragma once

#include <cstddef>
#include <cstring>
#include <link.h>
#include <span>
#include <string_view>

namespace Runtime {

struct ElfNote {
    std::string_view owner; // with its NUL: {"GNU", 4}
    ElfW(Word) type;        // has a meaning for its owner only
    std::string_view content;
};

// Calls `visit(note)` for each note of `object` until `visit` returns true; returns whether it did. Skips the rest of a
// segment after a damaged note.
template <class Visit> bool visitNotes(const dl_phdr_info& object, Visit visit) {
    constexpr std::size_t alignment = 4;
    constexpr auto padded = [](std::size_t size) { return (size + alignment - 1) / alignment * alignment; };
    for (const ElfW(Phdr) & segment : std::span(object.dlpi_phdr, object.dlpi_phnum)) {
        // Notes of another alignment have another layout; build ids and classes always have this one.
        if (segment.p_type != PT_NOTE || segment.p_align != alignment)
            continue;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the dynamic linker gives addresses as numbers
        const auto* const begin = reinterpret_cast<const char*>(object.dlpi_addr + segment.p_vaddr);
        std::string_view rest(begin, segment.p_memsz);
        ElfW(Nhdr) header;
        while (rest.size() >= sizeof header) {
            std::memcpy(&header, rest.data(), sizeof header);
            rest.remove_prefix(sizeof header);
            const std::size_t nameSize = padded(header.n_namesz);
            if (nameSize > rest.size() || header.n_descsz > rest.size() - nameSize)
                break;
            if (visit(ElfNote{.owner = rest.substr(0, header.n_namesz),
                              .type = header.n_type,
                              .content = rest.substr(nameSize, header.n_descsz)}))
                return true;
            const std::size_t size = nameSize + padded(header.n_descsz);
            rest = rest.substr(size < rest.size() ? size : rest.size()); // the last note may have no padding
        }
    }
    return false;
}

} // namespace Runtime
