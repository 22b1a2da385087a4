// Makes names from any bytes, and the C++ spelling of each name. A spelling is empty or a C++ identifier, which is its
// own spelling; a name is the same at every call. ICU, not the tested code, says which characters are valid.
#include "Generator/Namer.h"

#include "../Require.h"
#include <cstdint>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace {

namespace Namer = Generator::Namer;

void requireIdentifier(const std::string& spelled) {
    const auto text = icu::UnicodeString::fromUTF8(spelled);
    UErrorCode status = U_ZERO_ERROR;
    require(icu::Normalizer2::getNFCInstance(status)->isNormalized(text, status) != 0);
    require(text[0] == u'_' || u_hasBinaryProperty(text.char32At(0), UCHAR_XID_START) != 0);
    for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1))
        require(u_hasBinaryProperty(text.char32At(at), UCHAR_XID_CONTINUE) != 0);
    // C++ reserves names with two adjacent underscores, and those that begin with one and a capital letter.
    require(text.indexOf(u"__") < 0);
    require(spelled.size() < 2 || spelled[0] != '_' || spelled[1] < 'A' || spelled[1] > 'Z');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string key(reinterpret_cast<const char*>(data), size);
    for (const std::string_view component : Namer::components(key)) {
        const std::string group = Namer::groupName(component);
        const std::string entry = Namer::entryName(component);
        require(group.empty() == entry.empty());
        for (const std::string& name : {group, entry, Namer::assetName(component)}) {
            const std::string spelled = Namer::spelling(name);
            require(spelled.empty() == name.empty());
            require(Namer::spelling(spelled) == spelled);
            if (!spelled.empty())
                requireIdentifier(spelled);
        }
        require(Namer::groupName(component) == group && Namer::entryName(component) == entry);
    }
    if (const std::string table = Namer::tableSpelling(key); !table.empty())
        requireIdentifier(table);
    return 0;
}
