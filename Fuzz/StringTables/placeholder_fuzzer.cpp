// Finds the placeholders of any text: each is within the text and after the previous one, and reaches from a '%' to its
// conversion.
#include "StringTables/internal/Placeholder.h"

#include "../Require.h"
#include <cctype>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Kind = StringTables::Placeholder::Kind;
    const std::string_view format(reinterpret_cast<const char*>(data), size);
    std::size_t at = 0;
    while (const auto found = StringTables::nextPlaceholder(format, at)) {
        require(found->begin >= at && found->end >= found->begin + 2 && found->end <= format.size());
        require(format[found->begin] == '%');
        const char last = format[found->end - 1]; // "%s" and "%S" are read as "%@"
        require(std::tolower(last) ==
                (found->kind == Kind::text && last != '@' ? 's' : std::tolower(found->conversion)));
        // A position has at most four digits, a width or precision at most six.
        require(found->position <= 9999 && found->width.value <= 999999 && found->precision.value <= 999999);
        // The text between two placeholders contains none.
        require(!StringTables::nextPlaceholder(format.substr(0, found->begin), at));
        at = found->end;
    }
    require(StringTables::signatureOf(format).arguments.size() <= StringTables::FormatSignature::mostArguments);
    return 0;
}
