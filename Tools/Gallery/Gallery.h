// Gallery/Gallery.h
// One web page that shows the resources of a bundle to people: texts, pictures, colours, data and how far each language
// is translated. Docs/gallery.md describes the page and the data in it.
// Text: UTF-8; paths as the file system has them. Threads: one page at a time.
#pragma once

#include "Generator/NamesFile.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/Source.h"
#include <filesystem>
#include <string>

namespace Gallery {

struct Options {
    std::string title;  // of the page
    std::string module; // the namespace that accessors begin with, or empty: they begin with their table or catalog
    Generator::NamesFile names{};
};

// The page of the texts of `source` and the assets of the compiled bundle at `bundle`, whole and in need of no other
// file. A text or asset whose name gives no accessor is shown without one. The result is an error when
// the catalog is damaged.
[[nodiscard]] Runtime::Result<std::string> pageOf(const SourceBundle::Source& source,
                                                  const std::filesystem::path& bundle, const Options& options);

} // namespace Gallery
