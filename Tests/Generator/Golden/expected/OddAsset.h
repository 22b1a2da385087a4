// Made from the resources of the module Odd; do not edit.
// Every asset of the module by name.
#pragma once

#include "OddAsset/Looks.h"
#include "OddAssetRecords.h"

// Fingerprint of these headers: 13b3c00dfd49668d
