// Any bytes as a table of the text form, in UTF-8 or as they are, and in UTF-16.
#include "Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Checks::readCharacters(data, size, Checks::Form::text);
    return 0;
}
