// Reads any bytes as a string catalog: either it is rejected with a message, or its texts come in the order of their
// lines, and each plural has a text for display and a list of its arguments.
#include "SourceBundle/PluralText.h"
#include "SourceBundle/StringCatalog.h"
#include "StringTables/internal/PluralPieces.h"

#include "../Require.h"
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SourceBundle::Diagnostics diagnostics;
    std::uint32_t line = 0;
    const auto add = [&](SourceBundle::CatalogText&& text) {
        require(text.line >= line && text.column > 0);
        line = text.line;
        if (!text.plural)
            return;
        require(!text.plural->variables.empty());
        require(SourceBundle::otherText(*text.plural).size() <= SourceBundle::maxOtherText);
        (void)StringTables::signatureOf(*text.plural);
    };
    const auto language = SourceBundle::parseStringCatalog(std::string(reinterpret_cast<const char*>(data), size),
                                                           "fuzz.xcstrings", add, diagnostics);
    require(language || !language.error().message.empty());
    return 0;
}
