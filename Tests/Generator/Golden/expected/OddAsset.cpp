// Generated from the resources of the module Odd; do not edit.
#include "OddAsset.h"

#include "OddAsset/Internal/RecordFactory.h"

namespace Odd::OddAsset::Looks {

constinit const ::Odd::OddData _24h = ::Odd::OddAssetModule::RecordFactory::data("24h");
constinit const ::Odd::OddColors BrandColor = ::Odd::OddAssetModule::RecordFactory::color("Brand Color");
constinit const ::Odd::OddImages delete_ = ::Odd::OddAssetModule::RecordFactory::image("delete");
constinit const ::Odd::OddImages starBig = ::Odd::OddAssetModule::RecordFactory::image("star_big_");

} // namespace Odd::OddAsset::Looks

namespace Odd::OddAsset::Looks::Icons {

constinit const ::Odd::OddImages tabBar = ::Odd::OddAssetModule::RecordFactory::image("icons/tab bar");

} // namespace Odd::OddAsset::Looks::Icons
