// UIKit/UIKit.h
// All public headers of this folder.
#pragma once

#include "UIKit/NSDataAsset.h"
#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UITraitCollection.h"
