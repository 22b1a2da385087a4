// Reads any bytes as a plural table: either it is rejected with a message, or its entries are the same after they are
// written and read again, and texts can be made of them. To save time, only the first four get texts.
#include "Foundation/String.h"
#include "Foundation/internal/PluralText.h"

#include "../Require.h"
#include <algorithm>
#include <vector>

namespace {

using Foundation::FormatArgument;
using StringTables::PluralEntry;

bool areEqual(const PluralEntry& one, const PluralEntry& other) {
    return one.key == other.key && one.plural == other.plural;
}

// `maxPieceBytes`: no placeholder of a format, and no text between two, is longer.
void makeTexts(const StringTables::PluralFormat& plural, std::size_t maxPieceBytes) {
    const std::vector<FormatArgument> arguments = {std::int64_t{1}, 2.5, std::string_view("text"), std::int64_t{-21}};
    for (const std::string_view language : {"en", "ru", "ar", "no language"})
        for (std::size_t given = 0; given <= arguments.size(); given += 2) {
            const std::span some = std::span(arguments).first(given);
            const std::string format = Foundation::detail::chosenFormat(plural, language, some);
            require(format.size() < Foundation::detail::maxPluralBytes + maxPieceBytes); // the last piece is not cut
            (void)Foundation::String::format(format, Foundation::Locale(std::string(language)), some);
        }
    (void)Foundation::detail::generalFormat(plural);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto table = StringTables::PluralTable::read({reinterpret_cast<const char*>(data), size});
    if (!table) {
        require(!table.error().message.empty());
        return 0;
    }
    for (const PluralEntry& entry : table->entries())
        require(table->find(entry.key) == &entry);
    const auto bytes = StringTables::write(table->entries());
    const auto again = bytes ? StringTables::PluralTable::read(*bytes) : bytes.error();
    require(again && std::ranges::equal(table->entries(), again->entries(), areEqual));
    for (const PluralEntry& entry : table->entries().first(std::min<std::size_t>(table->entries().size(), 4)))
        makeTexts(entry.plural, 4 * size + 64); // ample for doubled '%', longer UTF-8, positions
    return 0;
}
