// Reads any bytes as PO and as XLIFF: either they are rejected with a message, or, if the units could be those of an
// export, they are the same after they are written and read again.
#include "Exchange/Po.h"
#include "Exchange/Xliff.h"

#include "../Require.h"
#include <algorithm>
#include <cstdint>
#include <set>

namespace {

using Exchange::Translations;
using Exchange::Unit;

// An export has no text twice. Plural forms are not tried, because in an export those of one text are adjacent.
bool isLikeAnExport(const Translations& translations) {
    std::set<std::string> ids;
    return std::ranges::all_of(translations.units, [&ids](const Unit& unit) {
        return ids.insert(Exchange::textOf(unit.id)).second && !unit.id.category;
    });
}

bool haveSameTexts(const Translations& one, const Translations& other) {
    return std::ranges::equal(one.units, other.units, [](const Unit& a, const Unit& b) {
        return a.id == b.id && a.source == b.source && a.target == b.target;
    });
}

void requireSame(const Translations& translations) {
    for (const Unit& unit : translations.units)
        require(Exchange::unitIdOf(Exchange::textOf(unit.id)) == unit.id);
    if (!isLikeAnExport(translations) || translations.units.empty())
        return;
    SourceBundle::Diagnostics diagnostics;
    auto written = translations;
    written.sourceLanguage = "en"; // an export has language codes here; the input may have any text
    written.targetLanguage = "de";
    // The units of a table are written into one <file> and so are read together.
    std::ranges::stable_sort(written.units, {}, [](const Unit& unit) { return unit.id.table; });
    const auto xliff = Exchange::readXliff(Exchange::writeXliff(written, /*version=*/"1"), "f", diagnostics);
    require(xliff && xliff->size() == 1 && haveSameTexts(xliff->front(), written) && !diagnostics.hasErrors());
    const std::string po = Exchange::writePo(written, diagnostics);
    if (!diagnostics.all().empty()) // units with a NUL were left out
        return;
    const auto again = Exchange::readPo(po, "f", diagnostics);
    require(again && haveSameTexts(*again, written));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    SourceBundle::Diagnostics diagnostics;
    if (const auto po = Exchange::readPo(bytes, "f", diagnostics))
        requireSame(*po);
    else
        require(!po.error().message.empty());
    if (const auto xliff = Exchange::readXliff(bytes, "f", diagnostics))
        for (const Translations& translations : *xliff)
            requireSame(translations);
    else
        require(!xliff.error().message.empty());
    return 0;
}
