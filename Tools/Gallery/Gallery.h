// Gallery/Gallery.h
// One web page that shows the resources of a bundle to people: texts, pictures, colours, data and how far each language
// is translated. Docs/gallery.md describes the page and the data in it.
// Text: UTF-8; paths as the file system has them. Threads: one page at a time.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <string>

namespace Gallery {

struct Options {
    std::string title;  // of the page
    std::string module; // the namespace that accessors begin with, or empty: they begin with their table or catalog
};

// The page of the compiled bundle at `bundle`, whole and in need of no other file. A text or asset whose name gives no
// accessor is shown without one. Damaged tables are errors among `diagnostics`, as when sources are read; the page is
// made nevertheless. The result is an error when there is no such folder, or its catalog is damaged.
[[nodiscard]] Runtime::Result<std::string> pageOf(const std::filesystem::path& bundle, const Options& options,
                                                  SourceBundle::Diagnostics& diagnostics);

} // namespace Gallery
