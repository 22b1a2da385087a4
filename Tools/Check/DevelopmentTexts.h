// Check/DevelopmentTexts.h
// The development texts of one table, which translations are compared with.
// Ownership: points into the source. Threads: any, immutable once made.
#pragma once

#include "Check/Arguments.h"
#include "SourceBundle/Source.h"
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Check {

struct DevelopmentText {
    const SourceBundle::SourceEntry* entry = nullptr;
    Arguments arguments{};
    std::optional<Arguments> before{}; // that it took in the older source, where they differ
};

class DevelopmentTexts {
public:
    // `older` is the same table of an older source, or null.
    DevelopmentTexts(const SourceBundle::Source& source, const SourceBundle::SourceTable& table,
                     const DevelopmentTexts* older);

    [[nodiscard]] const std::vector<DevelopmentText>& all() const noexcept { return texts_; }
    [[nodiscard]] const DevelopmentText* find(std::string_view key) const;
    // The same; looks first at the text behind `last`, since languages mostly have one order.
    [[nodiscard]] const DevelopmentText* findBehind(const DevelopmentText* last, std::string_view key) const;

    // A file of the development texts cannot be read, so texts are missing here.
    [[nodiscard]] bool isDamaged() const noexcept { return isDamaged_; }

private:
    std::vector<DevelopmentText> texts_;
    std::unordered_map<std::string_view, std::uint32_t> numbers_; // by key
    bool isDamaged_ = false;
};

} // namespace Check
