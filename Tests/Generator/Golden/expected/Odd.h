// Made from the resources of the module Odd; do not edit.
// The whole module.
#pragma once

#include "OddAsset.h"
#include "OddConveniences.h"
#include "OddResources.h"
#include "OddStrings.h"

#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Runtime/Class.h"
