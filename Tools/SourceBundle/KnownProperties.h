// SourceBundle/KnownProperties.h
// Which properties of a Contents.json are read, or ignored because they change nothing here; internal.
#pragma once

#include "SourceBundle/Json.h"
#include <string>
#include <vector>

namespace SourceBundle {

enum class KnownProperties { ofSet, ofEntry };

// The names of the others, and of those whose value is not of the expected type. Docs/catalogs.md lists all.
[[nodiscard]] std::vector<std::string> unknownProperties(const Json& object, KnownProperties known);

} // namespace SourceBundle
