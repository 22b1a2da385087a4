// SourceBundle/ImageLayout.h
// Reads how an image is resized and aligned.
#pragma once

#include "SourceBundle/Catalogs.h"
#include "SourceBundle/Json.h"

namespace SourceBundle {

// Reads the entry's "resizing" and "alignment-insets" into `file`, and converts insets from pixels to points with
// `file.fit.scale`.
void readLayout(const Json& entry, SetFile& file);

} // namespace SourceBundle
