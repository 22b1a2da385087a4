// Gallery/Gallery.h
// Creates a web page that shows the resources of a bundle: texts, pictures, colours, data and the coverage of each
// language. Docs/gallery.md describes the page and its data.
// Text: UTF-8; paths are raw bytes. Threads: any; no state.
#pragma once

#include "Generator/NamesFile.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/Source.h"
#include <filesystem>
#include <string>

namespace Gallery {

struct Options {
    std::string title;            // of the page
    std::string module;           // the namespace of accessors; if empty, they begin with their table or catalog
    Generator::NamesFile names{}; // of some texts; all other accessors are named by the rule (Docs/naming.md)
};

// A self-contained page with the texts of `source` and the assets of the compiled bundle at `bundle`. Texts and assets
// without an accessor are included. Errors: a catalog that is damaged or cannot be read.
[[nodiscard]] Runtime::Result<std::string> pageOf(const SourceBundle::Source& source,
                                                  const std::filesystem::path& bundle, const Options& options);

} // namespace Gallery
