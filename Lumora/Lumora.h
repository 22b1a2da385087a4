// Lumora/Lumora.h
// The whole public surface of the module.
#pragma once

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
#include "Runtime/Class.h"
