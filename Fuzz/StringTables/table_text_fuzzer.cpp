// Reads bytes as a table if they are in the text form: first as they are, then converted from UTF-8 to UTF-16.
#include "Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Checks::readCharacters(data, size, Checks::Form::text);
    return 0;
}
