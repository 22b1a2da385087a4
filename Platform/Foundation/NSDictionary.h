// Foundation/NSDictionary.h
// A file's dictionary of texts: a string table in any of its forms.
// Text: UTF-8; paths as the file system has them. Threads: any, immutable. Ownership: views live as long as the dictionary.
#pragma once

#include "Runtime/Export.h"
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation {

class LUMORA_EXPORT NSDictionary {
public:
    // Reads the whole file; no value when it is missing, damaged or too large. Throws std::bad_alloc, and
    // std::system_error on a transient error of the system.
    [[nodiscard]] static std::optional<NSDictionary> dictionaryWithContentsOfFile(const std::string& path);

    // The text of `key` (exact), or no value; a value that is not a text is none.
    [[nodiscard]] std::optional<std::string_view> stringForKey(std::string_view key) const noexcept;

private:
    struct Contents;
    explicit NSDictionary(std::shared_ptr<const Contents> contents) noexcept : contents_(std::move(contents)) {}

    std::shared_ptr<const Contents> contents_;
};

} // namespace Foundation
