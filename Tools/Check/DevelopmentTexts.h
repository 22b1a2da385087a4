// Check/DevelopmentTexts.h
// The development texts of one table, for comparison with translations.
// Ownership: points into the source. Threads: any, immutable once made.
#pragma once

#include "Check/Arguments.h"
#include "SourceBundle/Source.h"
#include "StringTables/internal/Index.h"
#include <optional>
#include <string_view>
#include <vector>

namespace Check {

struct DevelopmentText {
    std::string_view key; // of the entry, for Index
    const SourceBundle::SourceEntry* entry = nullptr;
    Arguments arguments{};
    std::optional<Arguments> before{}; // the arguments in the older source, if they differ
};

class DevelopmentTexts {
public:
    // `older` has the texts of the same table in an older source, or is null.
    DevelopmentTexts(const SourceBundle::Source& source, const SourceBundle::SourceTable& table,
                     const DevelopmentTexts* older);

    [[nodiscard]] const std::vector<DevelopmentText>& all() const noexcept { return texts_; }
    // The key's text, or null.
    [[nodiscard]] const DevelopmentText* find(std::string_view key) const;
    // The same, but first looks at the text after `last` (one of these texts, or null), because most languages have
    // their keys in the same order.
    [[nodiscard]] const DevelopmentText* findAfter(const DevelopmentText* last, std::string_view key) const;

    // Whether texts may be missing, because a file of them is unreadable or left out.
    [[nodiscard]] bool isDamaged() const noexcept { return isDamaged_; }

private:
    std::vector<DevelopmentText> texts_;
    StringTables::internal::Index index_;
    bool isDamaged_ = false;
};

} // namespace Check
