// Any bytes as a table of the text form, in UTF-8 or as they are, and in UTF-16.
#include "Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Checks::read(bytes, Checks::Form::text);
    if (Checks::isFor(Checks::Form::text, bytes))
        Checks::requireSameInUtf16(bytes);
    return 0;
}
