// Exchange/BinaryDocument.h
// Tables in the binary form, which has no layout to keep: they are written anew, in the order that they have; internal.
#pragma once

#include "Exchange/TableDocument.h"
#include "StringTables/internal/PluralTable.h"
#include <string>
#include <utility>
#include <vector>

namespace Exchange {

class BinaryTexts final : public TableDocument {
public:
    // An error where writing would lose values that are not texts.
    [[nodiscard]] static Runtime::Result<BinaryTexts> read(std::string bytes);
    BinaryTexts(BinaryTexts&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    BinaryTexts() = default;
    std::vector<std::pair<std::string, std::string>> texts_;
};

class BinaryPlurals final : public TableDocument {
public:
    [[nodiscard]] static Runtime::Result<BinaryPlurals> read(std::string bytes);
    BinaryPlurals(BinaryPlurals&&) = default;

    Runtime::Result<void> apply(const Change& change) override;
    Runtime::Result<std::string> bytes() const override;

private:
    BinaryPlurals() = default;
    std::vector<StringTables::PluralEntry> entries_;
};

} // namespace Exchange
