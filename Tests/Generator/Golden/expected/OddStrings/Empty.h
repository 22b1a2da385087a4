// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "Foundation/Describable.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>

namespace Odd::OddStrings::Empty {} // namespace Odd::OddStrings::Empty
