// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "OddStrings/Empty.h"
#include "OddStrings/Localizable.h"
#include "OddStrings/OddNames.h"
#include "Runtime/Class.h"

// Fingerprint of these headers: 0bfe15c5ea8d6737
