// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"

namespace Odd {

// The module's resources. Messages (Runtime/Class.h) find the class as "Odd.OddResources".
class OddResources {
public:
    // The module's bundle: the same object at every call, from any thread.
    [[nodiscard]] LUMORA_EXPORT static const ::Foundation::NSBundle& bundle();
};

} // namespace Odd
