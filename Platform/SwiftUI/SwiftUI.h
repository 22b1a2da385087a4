// SwiftUI/SwiftUI.h
// The views. The headers for modules are not included: AssetRecord.h and ModuleConveniences.h.
#pragma once

#include "SwiftUI/Color.h"
#include "SwiftUI/Image.h"
#include "SwiftUI/Text.h"
