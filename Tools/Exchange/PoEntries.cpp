#include "Exchange/PoEntries.h"

#include "Exchange/Languages.h"
#include "Exchange/Po.h"
#include <algorithm>

namespace Exchange {

namespace {

// The index of the unit with the category in [begin, end), or `otherwise`.
std::size_t indexOfForm(std::span<const Unit> units, std::size_t begin, std::size_t end, PluralCategory category,
                        std::size_t otherwise) {
    for (std::size_t i = begin; i < end; ++i)
        if (units[i].id.category == category)
            return i;
    return otherwise;
}

bool haveDifferentBreaks(std::string_view one, std::string_view other) {
    return one.starts_with('\n') != other.starts_with('\n') || one.ends_with('\n') != other.ends_with('\n');
}

// Whether gettext would reject the entry: it requires that all or none of its texts begin with a line break, and that
// all or none end with one.
bool isRejected(std::span<const Unit> units, const PoEntry& entry) {
    const std::string& source = units[entry.singular].source;
    const bool isTranslated =
        std::ranges::any_of(entry.units, [units](std::size_t number) { return !units[number].target.empty(); });
    return haveDifferentBreaks(source, units[entry.plural].source) ||
           (isTranslated && std::ranges::any_of(entry.units, [&](std::size_t number) {
                return haveDifferentBreaks(source, units[number].target);
            }));
}

} // namespace

std::vector<PoEntry> poEntries(std::span<const Unit> units, std::string_view language) {
    const std::vector<PluralCategory> categories = integerCategoriesOf(language);
    std::vector<PoEntry> entries;
    for (std::size_t begin = 0, end = 0; begin < units.size(); begin = end) {
        while (end < units.size() && isSamePart(units[begin], units[end]))
            ++end;
        PoEntry plural{.isPlural = true};
        std::vector<PoEntry> others;
        for (std::size_t i = begin; i < end; ++i)
            if (units[i].id.category && std::ranges::find(categories, *units[i].id.category) != categories.end())
                plural.units.push_back(i);
            else
                others.push_back({.units = {i}, .singular = i, .plural = i});
        if (!plural.units.empty()) {
            plural.plural = indexOfForm(units, begin, end, PluralCategory::other, plural.units.back());
            plural.singular = indexOfForm(units, begin, end, PluralCategory::one, plural.plural);
            entries.push_back(std::move(plural));
        }
        entries.insert(entries.end(), others.begin(), others.end());
    }
    return entries;
}

void markFuzzy(std::span<Unit> units, std::string_view language) {
    for (const PoEntry& entry : poEntries(units, language)) {
        const bool isUnfinished = std::ranges::any_of(entry.units, [units](std::size_t number) {
            return !units[number].target.empty() && units[number].state != State::translated;
        });
        const bool isFuzzy = isUnfinished || isRejected(units, entry);
        for (const std::size_t number : entry.units)
            units[number].isFuzzy = isFuzzy;
    }
}

} // namespace Exchange
