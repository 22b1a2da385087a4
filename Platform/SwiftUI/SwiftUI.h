// SwiftUI/SwiftUI.h
// The views, without AssetRecord.h and ModuleConveniences.h, which only the code of modules includes.
#pragma once

#include "SwiftUI/Color.h"
#include "SwiftUI/Image.h"
#include "SwiftUI/Text.h"
