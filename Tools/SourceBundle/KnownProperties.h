// SourceBundle/KnownProperties.h
// The properties in a Contents.json that are read or ignored without a note.
#pragma once

#include "SourceBundle/Json.h"
#include <string>
#include <vector>

namespace SourceBundle {

// Those of the member "properties" of a set's Contents.json, or those of an entry.
enum class KnownProperties { ofSet, ofEntry };

// The names of the properties of `object` that are not among `known`, or have a value of another type than expected.
// Docs/catalogs.md lists the known ones.
[[nodiscard]] std::vector<std::string> unknownProperties(const Json& object, KnownProperties known);

} // namespace SourceBundle
