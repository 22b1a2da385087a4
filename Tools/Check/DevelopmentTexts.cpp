#include "Check/DevelopmentTexts.h"

namespace Check {

using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;

DevelopmentTexts::DevelopmentTexts(const Source& source, const SourceTable& table, const DevelopmentTexts* older) {
    const std::vector<const SourceEntry*> entries = source.developmentEntries(table);
    texts_.reserve(entries.size());
    for (const SourceEntry* entry : entries) {
        DevelopmentText text{.key = entry->key, .entry = entry, .arguments = argumentsOf(*entry)};
        const DevelopmentText* before = older == nullptr ? nullptr : older->find(entry->key);
        if (before != nullptr && !before->arguments.fits(text.arguments))
            text.before = before->arguments;
        texts_.push_back(std::move(text));
        index_.addLast(texts_);
    }
    for (const std::string_view language : {std::string_view(source.developmentLanguage), SourceBundle::baseLanguage})
        if (const LanguageTexts* texts = table.find(language))
            isDamaged_ |= texts->isDamaged;
}

const DevelopmentText* DevelopmentTexts::find(std::string_view key) const {
    const std::size_t number = index_.find(key, texts_);
    return number == index_.none ? nullptr : &texts_[number];
}

const DevelopmentText* DevelopmentTexts::findAfter(const DevelopmentText* last, std::string_view key) const {
    const std::size_t next = last == nullptr ? 0 : static_cast<std::size_t>(last - texts_.data()) + 1;
    return next < texts_.size() && texts_[next].key == key ? &texts_[next] : find(key);
}

} // namespace Check
