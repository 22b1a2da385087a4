// Writes plural tables.
#include "StringTables/internal/PluralTable.h"

#include "StringTables/internal/BinaryWriter.h"
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/PluralKeys.h"
#include "StringTables/internal/Unicode.h"
#include "StringTables/internal/Writer.h"
#include <algorithm>

namespace StringTables {

namespace {

using internal::BinaryWriter;
using internal::isUtf8;

bool isUtf8(const PluralVariable& variable) {
    return isUtf8(variable.name) && isUtf8(variable.valueType) &&
           std::ranges::all_of(variable.forms, [](const auto& form) { return isUtf8(form.value_or("")); });
}

bool isUtf8(const PluralEntry& entry) {
    return isUtf8(entry.key) && isUtf8(entry.plural.format) &&
           std::ranges::all_of(entry.plural.variables, [](const PluralVariable& one) { return isUtf8(one); });
}

class Writer {
public:
    std::string write(std::span<const PluralEntry> entries) {
        const auto table = writer_.dictionary();
        for (const PluralEntry& entry : entries)
            writer_.add(table, writer_.string(entry.key), plural(entry.plural));
        return writer_.write();
    }

private:
    BinaryWriter::Number plural(const PluralFormat& format) {
        const auto made = writer_.dictionary();
        addText(made, pluralKeys::format, format.format);
        for (const PluralVariable& one : format.variables)
            writer_.add(made, writer_.string(one.name), variable(one));
        return made;
    }

    BinaryWriter::Number variable(const PluralVariable& variable) {
        const auto made = writer_.dictionary();
        addText(made, pluralKeys::ruleType, pluralKeys::pluralRule);
        addText(made, pluralKeys::valueType, variable.valueType);
        for (std::size_t i = 0; i < variable.forms.size(); ++i)
            if (variable.forms[i])
                addText(made, Intl::pluralCategoryNames[i], *variable.forms[i]);
        return made;
    }

    void addText(BinaryWriter::Number dictionary, std::string_view key, std::string_view text) {
        writer_.add(dictionary, writer_.string(key), writer_.string(text));
    }

    BinaryWriter writer_;
};

} // namespace

Runtime::Result<std::string> write(std::span<const PluralEntry> entries) {
    for (const PluralEntry& entry : entries)
        if (!isUtf8(entry))
            return Runtime::Error{"the entry " + internal::quoted(entry.key) + " is not UTF-8", {}};
    std::string bytes = Writer().write(entries);
    if (auto fits = checkWrittenSize(bytes.size()); !fits)
        return std::move(fits.error());
    return bytes;
}

} // namespace StringTables
