#include "Program/AssetCatalogs.h"

#include "Program/OwnBundle.h"
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Tools {

using AssetCatalog::Catalog;

Runtime::Result<std::optional<Catalog>> openCatalog(const std::string& bundle) {
    const std::string folder = bundle.empty() ? ownBundle() : bundle;
    std::error_code failed;
    if (!std::filesystem::is_directory(folder, failed))
        return Runtime::Error{.message = "is not a bundle", .file = folder};
    auto catalog = Catalog::open(folder + "/" + std::string(AssetCatalog::fileName), folder);
    if (catalog)
        return std::optional(*std::move(catalog));
    if (catalog.error().cause == ENOENT) // lumora compile writes no catalog for a source without assets
        return std::optional<Catalog>();
    return std::move(catalog.error());
}

} // namespace Tools
