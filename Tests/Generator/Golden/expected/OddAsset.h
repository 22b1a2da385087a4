// Generated from the resources of the module Odd; do not edit.
// All assets of the module.
#pragma once

#include "OddAsset/Looks.h"
#include "OddAssetRecords.h"

// Fingerprint of these headers: b1073ed330b63d1e
