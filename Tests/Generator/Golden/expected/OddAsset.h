// Generated from the resources of the module Odd; do not edit.
// All assets of the module.
#pragma once

#include "OddAsset/Looks.h"
#include "OddAssetRecords.h"

// Fingerprint of these headers: 50dded48f1e4b2cb
