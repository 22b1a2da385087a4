// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "../OddAssetRecords.h"
#include "Runtime/Export.h"

namespace Odd::OddAsset::Looks {

// "24h"
extern LUMORA_EXPORT const ::Odd::OddData _24h;
// "Brand Color"
extern LUMORA_EXPORT const ::Odd::OddColors BrandColor;
// "delete"
extern LUMORA_EXPORT const ::Odd::OddImages delete_;
// "star_big_"
extern LUMORA_EXPORT const ::Odd::OddImages starBig;

} // namespace Odd::OddAsset::Looks

namespace Odd::OddAsset::Looks::Icons {

// "icons/tab bar"
extern LUMORA_EXPORT const ::Odd::OddImages tabBar;

} // namespace Odd::OddAsset::Looks::Icons
