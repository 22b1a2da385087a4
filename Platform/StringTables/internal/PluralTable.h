// StringTables/internal/PluralTable.h
// A table of texts that depend on numbers (TABLE.stringsdict): each key has a format whose variables, "%#@days@", are
// replaced by the form that goes with their number.
// Text: UTF-8. Threads: any, immutable after reading. Ownership: values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include "Runtime/internal/Result.h"
#include "StringTables/internal/Table.h"
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables {

struct PluralVariable {
    std::string name;      // "days" for "%#@days@"
    std::string valueType; // the number's placeholder without its '%': "d", "ld", "lu", "f"; never empty
    // By Intl::PluralCategory; no value where the table gives no form. A form is a format of its own and may contain
    // variables.
    std::array<std::optional<std::string>, Intl::pluralCategoryCount> forms;

    friend bool operator==(const PluralVariable&, const PluralVariable&) = default;
};

struct PluralFormat {
    std::string format; // "%#@days@ left"
    std::vector<PluralVariable> variables;

    friend bool operator==(const PluralFormat&, const PluralFormat&) = default;
};

struct PluralEntry {
    std::string key;
    PluralFormat plural;
    std::size_t offset = 0; // of the key in the source

    friend bool operator==(const PluralEntry&, const PluralEntry&) = default;
};

// The bytes of a binary property list with these entries, in this order. The same entries give the same bytes.
// An error when a text is not UTF-8.
[[nodiscard]] Runtime::Result<std::string> write(std::span<const PluralEntry> entries);

} // namespace StringTables
