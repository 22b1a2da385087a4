// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "Foundation/Describable.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>

namespace Odd::OddStrings::OddNames {

// "text" = "A table whose name is no identifier"
LUMORA_EXPORT const std::string& text();

} // namespace Odd::OddStrings::OddNames
