// Gallery/Texts.h
// The texts of a source in all languages as JSON for the page.
#pragma once

#include "Generator/NamesFile.h"
#include "SourceBundle/Source.h"
#include <nlohmann/json.hpp>

namespace Gallery {

// { "languages": [CODE], "texts": [{ "table", "key", "accessor", "reason", "comment", "fixed", "values" }] } as in
// Docs/gallery.md.
[[nodiscard]] nlohmann::ordered_json textsOf(const SourceBundle::Source& source, const Generator::NamesFile& names);

} // namespace Gallery
