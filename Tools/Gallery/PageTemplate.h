// Gallery/PageTemplate.h
// The gallery's page without resources, made during the build from the files in Page/; internal.
#pragma once

#include <string_view>

namespace Gallery {

// Holds @RESOURCES@ and @PICTURES@ once each, in this order, where JSON goes.
extern const std::string_view pageTemplate;

} // namespace Gallery
