// Exchange/BinaryDocument.h
// Edits tables in binary form. They have no layout to preserve, so they are rewritten in their existing order.
#pragma once

#include "Exchange/TableDocument.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/PluralTable.h"
#include <string>
#include <utility>
#include <vector>

namespace Exchange {

class BinaryTexts final : public TableDocument {
public:
    // Fails if the table is damaged or a part of it was not read (Table::notes()), which writing would lose.
    [[nodiscard]] static Runtime::Result<BinaryTexts> read(std::string bytes);
    BinaryTexts(BinaryTexts&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    BinaryTexts() = default;
    std::vector<std::pair<std::string, std::string>> texts_;
    Runtime::NameMap<std::size_t> places_; // the index of each key in texts_
};

class BinaryPlurals final : public TableDocument {
public:
    // Fails like BinaryTexts::read().
    [[nodiscard]] static Runtime::Result<BinaryPlurals> read(std::string bytes);
    BinaryPlurals(BinaryPlurals&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    BinaryPlurals() = default;
    std::vector<StringTables::PluralEntry> entries_;
    Runtime::NameMap<std::size_t> places_; // the index of each key in entries_
};

} // namespace Exchange
