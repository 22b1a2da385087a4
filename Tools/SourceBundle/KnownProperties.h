// SourceBundle/KnownProperties.h
// The properties of a Contents.json that are read or have no effect here; internal.
#pragma once

#include "SourceBundle/Json.h"
#include <string>
#include <vector>

namespace SourceBundle {

enum class KnownProperties { ofSet, ofEntry };

// The names of unknown properties and of those with a value of another type than expected. Docs/catalogs.md lists the
// known ones.
[[nodiscard]] std::vector<std::string> unknownProperties(const Json& object, KnownProperties known);

} // namespace SourceBundle
