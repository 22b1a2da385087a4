// Gallery/PageTemplate.h
// The gallery's page without resources, assembled from the files in Page/ during the build.
#pragma once

#include <string_view>

namespace Gallery {

// Contains the placeholders @RESOURCES@ and @PICTURES@ for JSON, once each and in this order.
extern const std::string_view pageTemplate;

} // namespace Gallery
