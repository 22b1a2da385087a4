// Lumora/Lumora.h
// The whole public surface of the module.
#pragma once

#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Lumora/Loc.h"
#include "Lumora/Localization.h"
#include "Lumora/LumoraResources.h"
#include "Lumora/LumoraStrings.h"
#include "Runtime/Class.h"
