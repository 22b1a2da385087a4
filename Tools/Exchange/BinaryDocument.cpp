#include "Exchange/BinaryDocument.h"

#include "Exchange/PluralChange.h"
#include "StringTables/internal/Writer.h"

namespace Exchange {

using StringTables::PluralEntry;

namespace {

Runtime::Error wouldLose(const Runtime::Error& note) {
    return {.message = "a binary table that is not read completely cannot be edited, because the rest would be lost: " +
                       note.message};
}

} // namespace

Runtime::Result<BinaryTexts> BinaryTexts::read(std::string bytes) {
    const auto table = StringTables::Table::read(std::move(bytes));
    if (!table)
        return table.error();
    if (!table->notes().empty())
        return wouldLose(table->notes().front());
    BinaryTexts document;
    for (const StringTables::Entry& entry : table->entries()) {
        document.places_.emplace(entry.key, document.texts_.size());
        document.texts_.emplace_back(entry.key, entry.text);
    }
    return document;
}

Runtime::Result<void> BinaryTexts::apply(const Change& change) {
    const Unit& unit = *change.changed.front(); // a key of a table of texts has one
    const auto [place, isNew] = places_.try_emplace(unit.id.key, texts_.size());
    if (isNew)
        texts_.emplace_back(unit.id.key, unit.target);
    else
        texts_[place->second].second = unit.target;
    return {};
}

Runtime::Result<std::string> BinaryTexts::bytes() const {
    std::vector<StringTables::Entry> entries;
    for (const auto& [key, text] : texts_)
        entries.push_back({key, text});
    return StringTables::write(entries, StringTables::Form::binary);
}

Runtime::Result<BinaryPlurals> BinaryPlurals::read(std::string bytes) {
    const auto table = StringTables::PluralTable::read(std::move(bytes));
    if (!table)
        return table.error();
    if (!table->notes().empty())
        return wouldLose(table->notes().front());
    BinaryPlurals document;
    for (const PluralEntry& entry : table->entries()) {
        document.places_.emplace(entry.key, document.entries_.size());
        document.entries_.push_back(entry);
    }
    return document;
}

Runtime::Result<void> BinaryPlurals::apply(const Change& change) {
    const std::string& key = change.changed.front()->id.key;
    const auto [place, isNew] = places_.try_emplace(key, entries_.size());
    if (isNew)
        entries_.push_back({key, newPlural(change), {}});
    else
        applyTo(entries_[place->second].plural, change.changed, *change.development);
    return {};
}

Runtime::Result<std::string> BinaryPlurals::bytes() const {
    return StringTables::write(entries_);
}

} // namespace Exchange
