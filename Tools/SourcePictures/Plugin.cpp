// The plug-in's implementation of Converters.
#include "SourcePictures/Converters.h"

#include "SourcePictures/Converted.h"
#include "SourcePictures/VectorImages.h"

namespace SourcePictures {

namespace {

class LinkedConverters final : public Converters {
    DrawingResult drawing(std::string_view bytes, Format format, bool isSymbol) const override {
        if (format == Format::pdf)
            return readPdf(bytes);
        return isSymbol ? readSymbol(bytes) : readSvg(bytes);
    }
    Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes, Format format) const override {
        return SourcePictures::converted(bytes, format);
    }
};

constinit const LinkedConverters linkedConverters;

} // namespace

} // namespace SourcePictures

const SourcePictures::Converters* lumoraDrawing() noexcept {
    return &SourcePictures::linkedConverters;
}
