#include "Compiler/Vector.h"

#include "AssetCatalog/internal/Catalog.h"
#include <cairo.h>
#include <cmath>
#include <librsvg/rsvg.h>
#include <memory>
#include <poppler.h>

namespace Compiler {

using AssetCatalog::Picture;

namespace {

struct Release {
    void operator()(void* object) const { g_object_unref(object); }
    void operator()(GBytes* bytes) const { g_bytes_unref(bytes); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
template <class T> using Owned = std::unique_ptr<T, Release>;

Runtime::Error damaged(GError* error) {
    const Owned<GError> owned(error);
    std::string message = "is a damaged drawing";
    if (error != nullptr)
        message.append(": ").append(error->message);
    message.erase(message.find_last_not_of('\n') + 1); // some end their line
    return {.message = message};
}

// A canvas of whole pixels for a drawing of `width` by `height` points, scaled so that points can be drawn on it.
struct Canvas {
    Owned<cairo_surface_t> surface;
    Owned<cairo_t> context;
};
Runtime::Result<Canvas> canvasFor(double width, double height, std::uint8_t scale) {
    const double columns = std::ceil(width * scale);
    const double rows = std::ceil(height * scale);
    if (!(columns >= 1 && rows >= 1))
        return Runtime::Error{.message = "is a drawing without a size"};
    if (!(columns * rows <= static_cast<double>(AssetCatalog::maxPixels) && columns <= 32767 && rows <= 32767))
        return Runtime::Error{.message = "is a drawing larger than a catalog may hold"};
    Canvas canvas;
    canvas.surface.reset(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(columns), static_cast<int>(rows)));
    canvas.context.reset(cairo_create(canvas.surface.get()));
    return canvas;
}

Runtime::Result<Picture> pictureOn(const Canvas& canvas) {
    Picture picture;
    picture.width = static_cast<std::uint32_t>(cairo_image_surface_get_width(canvas.surface.get()));
    picture.height = static_cast<std::uint32_t>(cairo_image_surface_get_height(canvas.surface.get()));
    const auto append = [](void* bytes, const unsigned char* data, unsigned length) {
        static_cast<std::vector<std::uint8_t>*>(bytes)->insert(static_cast<std::vector<std::uint8_t>*>(bytes)->end(),
                                                               data, data + length);
        return CAIRO_STATUS_SUCCESS;
    };
    const cairo_status_t status = cairo_surface_write_to_png_stream(canvas.surface.get(), append, &picture.bytes);
    if (status != CAIRO_STATUS_SUCCESS)
        return Runtime::Error{.message = std::string("cannot be rendered: ") + cairo_status_to_string(status)};
    return picture;
}

constexpr double pixelsPerInch = 96; // as CSS has it

// In points; 0 where the drawing leaves it to its reader.
double pointsOf(gboolean isGiven, RsvgLength length) {
    static constexpr double perUnit[] = {0,         1, 16, 8, pixelsPerInch, pixelsPerInch / 2.54, pixelsPerInch / 25.4,
                                         96.0 / 72, 16};
    const auto unit = static_cast<std::size_t>(length.unit); // percent, px, em, ex, in, cm, mm, pt, pc
    return isGiven != FALSE && unit < std::size(perUnit) ? length.length * perUnit[unit] : 0;
}

// What a drawing leaves open of its size follows from its view box.
RsvgRectangle sizeOf(RsvgHandle* drawing) {
    gboolean hasWidth = FALSE;
    gboolean hasHeight = FALSE;
    gboolean hasBox = FALSE;
    RsvgLength givenWidth{};
    RsvgLength givenHeight{};
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(drawing, &hasWidth, &givenWidth, &hasHeight, &givenHeight, &hasBox, &box);
    double width = pointsOf(hasWidth, givenWidth);
    double height = pointsOf(hasHeight, givenHeight);
    if (hasBox != FALSE && box.width > 0 && box.height > 0) {
        if (width <= 0 && height <= 0)
            width = box.width;
        if (width <= 0)
            width = height * box.width / box.height;
        if (height <= 0)
            height = width * box.height / box.width;
    }
    return {.x = 0, .y = 0, .width = width, .height = height};
}

Runtime::Result<Picture> renderSvg(std::string_view bytes, std::uint8_t scale) {
    GError* error = nullptr;
    // Without a base there is nothing that the drawing could refer to.
    const Owned<RsvgHandle> drawing(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(bytes.data()), bytes.size(), &error));
    if (drawing == nullptr)
        return damaged(error);
    rsvg_handle_set_dpi(drawing.get(), pixelsPerInch);
    const RsvgRectangle size = sizeOf(drawing.get());
    const auto canvas = canvasFor(size.width, size.height, scale);
    if (!canvas)
        return canvas.error();
    const RsvgRectangle whole{.x = 0, .y = 0, .width = size.width * scale, .height = size.height * scale};
    if (rsvg_handle_render_document(drawing.get(), canvas->context.get(), &whole, &error) == FALSE)
        return damaged(error);
    return pictureOn(*canvas);
}

Runtime::Result<Picture> renderPdf(std::string_view bytes, std::uint8_t scale) {
    GError* error = nullptr;
    const Owned<GBytes> data(g_bytes_new(bytes.data(), bytes.size()));
    const Owned<PopplerDocument> document(poppler_document_new_from_bytes(data.get(), nullptr, &error));
    if (document == nullptr)
        return damaged(error);
    const Owned<PopplerPage> page(poppler_document_get_page(document.get(), 0));
    if (page == nullptr)
        return damaged(nullptr);
    double width = 0;
    double height = 0;
    poppler_page_get_size(page.get(), &width, &height);
    const auto canvas = canvasFor(width, height, scale);
    if (!canvas)
        return canvas.error();
    cairo_scale(canvas->context.get(), scale, scale);
    poppler_page_render(page.get(), canvas->context.get());
    return pictureOn(*canvas);
}

} // namespace

std::optional<VectorForm> vectorFormOf(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG") || bytes.starts_with("\xFF\xD8"))
        return std::nullopt;
    if (bytes.substr(0, 1024).find("%PDF-") != std::string_view::npos)
        return VectorForm::pdf;
    // Whatever else begins as XML does, in any of its encodings, is meant as an SVG.
    const std::size_t begin = bytes.find_first_not_of(std::string_view("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10));
    return begin != std::string_view::npos && bytes[begin] == '<' ? std::optional(VectorForm::svg) : std::nullopt;
}

Runtime::Result<Picture> render(std::string_view bytes, VectorForm form, std::uint8_t scale) {
    return form == VectorForm::svg ? renderSvg(bytes, scale) : renderPdf(bytes, scale);
}

} // namespace Compiler
