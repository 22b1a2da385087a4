#include "Exchange/PluralChange.h"

#include <algorithm>

namespace Exchange {

using StringTables::PluralFormat;
using StringTables::PluralVariable;

namespace {

// The variable of that name, added if necessary.
PluralVariable& variableNamed(PluralFormat& plural, const std::string& name, const PluralFormat* development) {
    auto found = std::ranges::find(plural.variables, name, &PluralVariable::name);
    if (found != plural.variables.end())
        return *found;
    PluralVariable& added = plural.variables.emplace_back(PluralVariable{name, "ld", {}});
    if (development != nullptr)
        for (const PluralVariable& variable : development->variables)
            if (variable.name == name)
                added.valueType = variable.valueType;
    return added;
}

} // namespace

void applyTo(PluralFormat& plural, std::span<const Unit* const> units, const SourceBundle::SourceEntry& development) {
    for (const Unit* unit : units)
        if (unit->id.category)
            variableNamed(plural, unit->id.part.back(), development.plural).forms[indexOf(*unit->id.category)] =
                unit->target;
        else
            plural.format = unit->target;
}

PluralFormat newPlural(const Change& change) {
    PluralFormat plural;
    if (change.development->plural != nullptr)
        plural.format = change.development->plural->format;
    applyTo(plural, change.all, *change.development);
    return plural;
}

} // namespace Exchange
