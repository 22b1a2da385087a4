// Foundation/NSDictionary.h
// A dictionary of strings read from a file: a table of texts (.strings) in the text form or as a property list, XML or
// binary.
// Text: UTF-8; paths are raw bytes. Threads: any, immutable. Ownership: views live as long as the dictionary.
#pragma once

#include "Runtime/Export.h"
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation {

class LUMORA_EXPORT NSDictionary {
public:
    // Reads the whole file; no value if it is missing, cannot be read, is damaged, or is larger than 256 MiB. Throws
    // std::bad_alloc, and std::system_error on a transient error, such as too many open files.
    [[nodiscard]] static std::optional<NSDictionary> dictionaryWithContentsOfFile(const std::string& path);

    // The text of `key` (exact); no value when there is none or it is not a string.
    [[nodiscard]] std::optional<std::string_view> stringForKey(std::string_view key) const noexcept;

private:
    struct Contents;
    explicit NSDictionary(std::shared_ptr<const Contents> contents) noexcept : contents_(std::move(contents)) {}

    std::shared_ptr<const Contents> contents_;
};

} // namespace Foundation
