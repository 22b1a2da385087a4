#include "SourcePictures/VectorImage.h"

#include "AssetCatalog/internal/Catalog.h" // maxPixels
#include "SourcePictures/GlibPointers.h"
#include <cmath>
#include <new>

namespace SourcePictures {

namespace {

constexpr int maxSide = 32767; // of a cairo image surface, in pixels

struct PixelSize {
    int columns;
    int rows;
};

Runtime::Result<PixelSize> pixelSize(AssetCatalog::Size size, double pixelsPerUnit) {
    const double columns = std::ceil(size.width * pixelsPerUnit);
    const double rows = std::ceil(size.height * pixelsPerUnit);
    if (!(columns >= 1 && rows >= 1)) // also NaN
        return Runtime::Error{.message = "is a drawing without a size"};
    if (!(columns * rows <= static_cast<double>(AssetCatalog::maxPixels)))
        return Runtime::Error{.message = "is a drawing with more pixels than a catalog may contain"};
    if (columns > maxSide || rows > maxSide)
        return Runtime::Error{.message =
                                  "is a drawing with a side of more than " + std::to_string(maxSide) + " pixels"};
    return PixelSize{static_cast<int>(columns), static_cast<int>(rows)};
}

Runtime::Error cannotBeDrawn(cairo_status_t status) {
    return {.message = std::string("cannot be drawn: ") + cairo_status_to_string(status)};
}

// An error, unless `status` is success. Throws std::bad_alloc when memory ran out.
Runtime::Result<void> resultOf(cairo_status_t status) {
    if (status == CAIRO_STATUS_SUCCESS)
        return {};
    if (status == CAIRO_STATUS_NO_MEMORY)
        throw std::bad_alloc();
    return cannotBeDrawn(status);
}

// Whether there is memory for a surface of 64 MiB.
bool isMemoryLeft() {
    const Owned<cairo_surface_t> surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4096, 4096));
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

// A new surface of that size, filled by the drawing.
Runtime::Result<Owned<cairo_surface_t>> drawn(const VectorImage& image, PixelSize pixels) {
    Owned<cairo_surface_t> surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.columns, pixels.rows));
    const Owned<cairo_t> context(cairo_create(surface.get()));
    cairo_scale(context.get(), pixels.columns / image.size().width, pixels.rows / image.size().height);
    if (auto ready = resultOf(cairo_status(context.get())); !ready)
        return std::move(ready.error());
    auto done = image.draw(context.get());
    const cairo_status_t status = cairo_status(context.get());
    // cairo also reports a lack of memory if coordinates are too large for it.
    if (status == CAIRO_STATUS_NO_MEMORY && !isMemoryLeft())
        throw std::bad_alloc();
    if (!done)
        return std::move(done.error());
    if (status != CAIRO_STATUS_SUCCESS)
        return cannotBeDrawn(status);
    return surface;
}

} // namespace

Runtime::Result<void> VectorImage::check(double pixelsPerUnit) const {
    if (const auto pixels = pixelSize(size(), pixelsPerUnit); !pixels)
        return pixels.error();
    if (const auto pixel = drawn(*this, {1, 1}); !pixel)
        return pixel.error();
    return {};
}

Runtime::Result<AssetCatalog::Picture> VectorImage::picture(double pixelsPerUnit) const {
    const auto pixels = pixelSize(size(), pixelsPerUnit);
    if (!pixels)
        return pixels.error();
    const auto surface = drawn(*this, *pixels);
    if (!surface)
        return surface.error();
    std::string png;
    // Exceptions must not pass through cairo's C frames.
    const auto append = [](void* out, const unsigned char* data, unsigned length) noexcept {
        try {
            static_cast<std::string*>(out)->append(reinterpret_cast<const char*>(data), length);
            return CAIRO_STATUS_SUCCESS;
        } catch (const std::bad_alloc&) {
            return CAIRO_STATUS_NO_MEMORY;
        }
    };
    if (auto written = resultOf(cairo_surface_write_to_png_stream(surface->get(), append, &png)); !written)
        return std::move(written.error());
    AssetCatalog::Picture picture;
    picture.width = static_cast<std::uint32_t>(pixels->columns);
    picture.height = static_cast<std::uint32_t>(pixels->rows);
    picture.bytes = AssetCatalog::shared(std::move(png));
    return picture;
}

} // namespace SourcePictures
