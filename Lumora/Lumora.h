// Lumora/Lumora.h
// The whole public surface of the module.
#pragma once

#if __cplusplus < 202002L
#error "Lumora needs C++20: compile with -std=c++20 or later"
#else

#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Lumora/AssetConveniences.h"
#include "Lumora/LegacyImages.h"
#include "Lumora/Loc.h"
#include "Lumora/Localization.h"
#include "Lumora/LumoraAsset.h"
#include "Lumora/LumoraResources.h"
#include "Lumora/LumoraStrings.h"
#include "Lumora/ProgressColors.h"
#include "Lumora/RegionalImages.h"
#ifdef __cpp_rtti // messages need it; all else works without
#include "Runtime/Class.h"
#endif

#endif // C++20
