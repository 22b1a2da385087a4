// Reads bytes as a table, if they are in the binary form.
#include "Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Checks::read({reinterpret_cast<const char*>(data), size}, Checks::Form::binary);
    return 0;
}
