// SwiftUI/SwiftUI.h
// All public headers of this folder.
#pragma once

#include "SwiftUI/Color.h"
#include "SwiftUI/Image.h"
#include "SwiftUI/Text.h"
