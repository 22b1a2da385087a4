// SourceBundle/ImageLayout.h
// How an image is resized and aligned, as catalogs write it; internal.
#pragma once

#include "SourceBundle/Catalogs.h"
#include "SourceBundle/Json.h"

namespace SourceBundle {

// The entry's "resizing" and "alignment-insets", which are in pixels, into `file`, which has them in points.
void readLayout(const Json& entry, SourceFile& file);

} // namespace SourceBundle
