// Generated from the resources of the module Odd; do not edit.
// The whole module.
#pragma once

#if __cplusplus < 202002L
#error "Odd needs C++20: compile with -std=c++20 or later"
#else

#include "OddAsset.h"
#include "OddConveniences.h"
#include "OddResources.h"
#include "OddStrings.h"

#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#ifdef __cpp_rtti // messages need it
#include "Runtime/Class.h"
#endif

#endif // C++20
