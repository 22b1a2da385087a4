// Opens any bytes as a compiled catalog: either it is rejected, or everything in it can be read and found.
#include "../../Tests/AssetCatalog/Walk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Walk::ExactAllocation bytes({reinterpret_cast<const char*>(data), size});
    if (const auto catalog = AssetCatalog::Catalog::read(bytes.span()))
        Walk::everything(*catalog);
    return 0;
}
