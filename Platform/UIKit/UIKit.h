// UIKit/UIKit.h
// Everything of the folder that users see.
#pragma once

#include "UIKit/NSDataAsset.h"
#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UITraitCollection.h"
