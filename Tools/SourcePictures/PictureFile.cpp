#include "SourcePictures/PictureFile.h"

#include "AssetCatalog/internal/Catalog.h" // maxPixels
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/Pictures.h"
#include "SourcePictures/Converters.h"
#include "SourcePictures/Drawing.h"
#include "SourcePictures/Formats.h"
#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace SourcePictures {

using AssetCatalog::Picture;

namespace {

using PictureList = std::vector<Picture>;

std::span<const std::uint8_t> unsignedBytes(std::string_view bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

bool isHeif(std::string_view bytes) {
    static constexpr std::string_view brands[] = {"heic", "heix", "hevc", "hevx", "mif1", "msf1", "avif", "avis"};
    return bytes.size() >= 12 && bytes.substr(4, 4) == "ftyp" && std::ranges::count(brands, bytes.substr(8, 4)) != 0;
}

// Treats everything that begins like XML, in UTF-8, UTF-16 or UTF-32, as SVG.
bool isXml(std::string_view bytes) {
    const std::size_t begin = bytes.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10));
    return begin != std::string_view::npos && bytes[begin] == '<';
}

// The pixels per point that the file was made for; 1 if it is for any scale.
double ownScale(const Purpose& purpose) {
    return std::max<std::uint8_t>(purpose.scale, 1);
}

// The scales at which a drawing is rasterized, beginning with its own if it was made for one.
std::vector<std::uint8_t> scalesOf(const Purpose& purpose) {
    if (purpose.scale != 0 && !purpose.preservesVector)
        return {purpose.scale};
    std::vector<std::uint8_t> scales = {1, 2, 3};
    if (purpose.scale != 0) {
        std::erase(scales, purpose.scale);
        scales.insert(scales.begin(), purpose.scale);
    }
    return scales;
}

// Pixels per unit of a drawing at `scale`. The units are pixels at the drawing's own scale.
double pixelsPerUnit(std::uint8_t scale, const Purpose& purpose) {
    return scale / ownScale(purpose);
}

Runtime::Result<void> checkDrawing(std::string_view bytes, Format format, const Purpose& purpose) {
    const auto drawing = converters().drawing(bytes, format, purpose.isSymbol);
    if (!drawing)
        return drawing.error();
    return (*drawing)->check(pixelsPerUnit(std::ranges::max(scalesOf(purpose)), purpose));
}

Runtime::Result<PictureList> drawn(std::string_view bytes, Format format, const Purpose& purpose) {
    const auto read = converters().drawing(bytes, format, purpose.isSymbol);
    if (!read)
        return read.error();
    const Drawing& drawing = **read;
    PictureList pictures;
    for (const std::uint8_t scale : scalesOf(purpose)) {
        auto picture = drawing.picture(pixelsPerUnit(scale, purpose));
        if (!picture)
            return std::move(picture.error());
        picture->fit.scale = scale;
        picture->points = {drawing.size().width / ownScale(purpose), drawing.size().height / ownScale(purpose)};
        pictures.push_back(*std::move(picture));
    }
    return pictures;
}

Runtime::Result<void> checkRaster(std::string_view bytes) {
    const auto bitmap = Pictures::decode(unsignedBytes(bytes), AssetCatalog::maxPixels, Pictures::linkedDecoders());
    if (!bitmap)
        return bitmap.error();
    return {};
}

Runtime::Result<Picture> raster(const AssetCatalog::Bytes& bytes) {
    const auto size = Pictures::measure(unsignedBytes(*bytes));
    if (!size)
        return size.error();
    Picture picture;
    picture.width = size->width;
    picture.height = size->height;
    picture.bytes = bytes;
    return picture;
}

Runtime::Error unknownFormat() {
    return {.message = "has an unknown format (supported: PNG, JPEG, GIF, TIFF, WebP, HEIF, SVG, PDF)"};
}

} // namespace

std::optional<Format> formatOf(std::string_view bytes) {
    static constexpr std::pair<std::string_view, Format> beginnings[] = {
        {"\x89PNG", Format::png},     {"\xFF\xD8\xFF", Format::jpeg}, {"GIF8", Format::gif},
        {{"MM\0*", 4}, Format::tiff}, {{"II*\0", 4}, Format::tiff},
    };
    for (const auto& [beginning, format] : beginnings)
        if (bytes.starts_with(beginning))
            return format;
    if (bytes.starts_with("RIFF") && bytes.substr(std::min<std::size_t>(bytes.size(), 8), 4) == "WEBP")
        return Format::webp;
    if (isHeif(bytes))
        return Format::heif;
    if (bytes.substr(0, 1024).find("%PDF-") != std::string_view::npos) // readers accept other bytes before it
        return Format::pdf;
    return isXml(bytes) ? std::optional(Format::svg) : std::nullopt;
}

Runtime::Result<void> check(const std::string& bytes, const Purpose& purpose) {
    const std::optional<Format> format = formatOf(bytes);
    if (!format)
        return unknownFormat();
    switch (*format) {
    case Format::svg:
    case Format::pdf:
        return checkDrawing(bytes, *format, purpose);
    case Format::png:
    case Format::jpeg:
        return checkRaster(bytes);
    case Format::gif:
    case Format::tiff:
    case Format::webp:
    case Format::heif:
        break;
    }
    if (const auto made = converters().converted(bytes, *format); !made)
        return made.error();
    return {};
}

Runtime::Result<PictureList> picturesOf(const AssetCatalog::Bytes& bytes, const Purpose& purpose) {
    const std::optional<Format> format = formatOf(*bytes);
    if (!format)
        return unknownFormat();
    if (*format == Format::svg || *format == Format::pdf)
        return drawn(*bytes, *format, purpose);
    const bool isKept = *format == Format::png || *format == Format::jpeg;
    auto picture = isKept ? raster(bytes) : converters().converted(*bytes, *format);
    if (!picture)
        return std::move(picture.error());
    picture->fit.scale = purpose.scale;
    picture->points = {picture->width / ownScale(purpose), picture->height / ownScale(purpose)};
    PictureList pictures;
    pictures.push_back(*std::move(picture));
    return pictures;
}

std::string converterVersion() {
    return "1" LUMORA_DRAWING_VERSIONS; // increase the number when this code gives other bytes
}

} // namespace SourcePictures
