// SwiftUI/SwiftUI.h
// Everything of the folder that users see.
#pragma once

#include "SwiftUI/Color.h"
#include "SwiftUI/Image.h"
#include "SwiftUI/Text.h"
