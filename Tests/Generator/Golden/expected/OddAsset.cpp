// Generated from the resources of the module Odd; do not edit.
#include "OddAsset.h"

#include "OddAsset/Internal/Catalog.h"

namespace Odd::OddAsset::Looks {

constinit const ::Odd::OddData _24h = ::Odd::OddAssetModule::Catalog::data("24h");
constinit const ::Odd::OddColors BrandColor = ::Odd::OddAssetModule::Catalog::color("Brand Color");
constinit const ::Odd::OddImages delete_ = ::Odd::OddAssetModule::Catalog::image("delete");
constinit const ::Odd::OddImages starBig = ::Odd::OddAssetModule::Catalog::image("star_big_");

} // namespace Odd::OddAsset::Looks

namespace Odd::OddAsset::Looks::Icons {

constinit const ::Odd::OddImages tabBar = ::Odd::OddAssetModule::Catalog::image("icons/tab bar");

} // namespace Odd::OddAsset::Looks::Icons
