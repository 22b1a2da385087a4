// StringTables/internal/FoundText.h
// The result of a lookup in a table: a text or nothing.
// Threads: plain values. Ownership: borrows the text. A FoundText has 16 bytes, so functions return it in registers.
#pragma once

#include "StringTables/PercentRange.h"
#include <cstdint>
#include <string_view>

namespace StringTables {

class FoundText {
public:
    constexpr FoundText() noexcept = default; // none
    // A text of less than 4 GiB, whose data() is not null even if it is empty. `percents`: where its percent signs are.
    constexpr explicit FoundText(std::string_view text, PercentRange percents = {}) noexcept
        : begin_(text.data()), size_(static_cast<std::uint32_t>(text.size())), percents_(percents) {}

    constexpr explicit operator bool() const noexcept { return begin_ != nullptr; }
    constexpr std::string_view text() const noexcept { return {begin_, size_}; }
    constexpr PercentRange percents() const noexcept { return percents_; }

private:
    const char* begin_ = nullptr;
    std::uint32_t size_ = 0;
    PercentRange percents_;
};
static_assert(sizeof(FoundText) == 16);

} // namespace StringTables
