#include "SourcePictures/VectorImages.h"

#include "SourcePictures/GlibPointers.h"
#include "SourcePictures/VectorImage.h"
#include <cmath>
#include <librsvg/rsvg.h>
#include <mutex>
#include <optional>
#include <poppler.h>
#include <string>

namespace SourcePictures {

namespace {

using AssetCatalog::Size;

constexpr double pixelsPerInch = 96; // as in CSS

// The length in points, which are pixels of CSS, with the usual font size of 16; no value for a percentage or a missing
// length.
std::optional<double> pointsOf(gboolean isGiven, RsvgLength length) {
    if (isGiven == FALSE)
        return std::nullopt;
    switch (length.unit) {
    case RSVG_UNIT_PX:
        return length.length;
    case RSVG_UNIT_EM:
        return length.length * 16;
    case RSVG_UNIT_EX:
        return length.length * 8;
    case RSVG_UNIT_IN:
        return length.length * pixelsPerInch;
    case RSVG_UNIT_CM:
        return length.length * pixelsPerInch / 2.54;
    case RSVG_UNIT_MM:
        return length.length * pixelsPerInch / 25.4;
    case RSVG_UNIT_PT:
        return length.length * pixelsPerInch / 72;
    case RSVG_UNIT_PC:
        return length.length * pixelsPerInch / 6;
    case RSVG_UNIT_PERCENT:
        break;
    }
    return std::nullopt;
}

// The size of the drawing. A missing length or a percentage is derived from the view box; no value if that is missing,
// too.
std::optional<Size> declaredSize(RsvgHandle* drawing) {
    gboolean hasWidth = FALSE;
    gboolean hasHeight = FALSE;
    gboolean hasBox = FALSE;
    RsvgLength givenWidth{};
    RsvgLength givenHeight{};
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(drawing, &hasWidth, &givenWidth, &hasHeight, &givenHeight, &hasBox, &box);
    std::optional<double> width = pointsOf(hasWidth, givenWidth);
    std::optional<double> height = pointsOf(hasHeight, givenHeight);
    if (hasBox != FALSE && box.width > 0 && box.height > 0) {
        if (!width)
            width = height ? *height * box.width / box.height : box.width;
        if (!height)
            height = *width * box.height / box.width;
    }
    if (!width || !height)
        return std::nullopt;
    // librsvg computes in single precision, where 6.35 mm are 23.9999 points.
    const auto rounded = [](double points) { return std::round(points * 1e4) / 1e4; };
    return Size{rounded(*width), rounded(*height)};
}

// The size of one element, or of the whole content if `id` is null.
Runtime::Result<Size> contentSize(RsvgHandle* drawing, const char* id) {
    RsvgRectangle ink{};
    GError* error = nullptr;
    if (rsvg_handle_get_geometry_for_element(drawing, id, &ink, nullptr, &error) == FALSE)
        return damaged("drawing", error);
    return Size{ink.width, ink.height};
}

Runtime::Result<Owned<RsvgHandle>> svgHandle(std::string_view bytes) {
    GError* error = nullptr;
    // Without a base URL the drawing cannot refer to other files.
    Owned<RsvgHandle> drawing(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(bytes.data()), bytes.size(), &error));
    if (drawing == nullptr)
        return damaged("drawing", error);
    rsvg_handle_set_dpi(drawing.get(), pixelsPerInch);
    return drawing;
}

class SvgDrawing final : public VectorImage {
public:
    SvgDrawing(Owned<RsvgHandle> drawing, Size size) : drawing_(std::move(drawing)), size_(size) {}

    Size size() const override { return size_; }
    Runtime::Result<void> draw(cairo_t* context) const override {
        const RsvgRectangle area{.x = 0, .y = 0, .width = size_.width, .height = size_.height};
        GError* error = nullptr;
        if (rsvg_handle_render_document(drawing_.get(), context, &area, &error) == FALSE)
            return damaged("drawing", error);
        return {};
    }

private:
    Owned<RsvgHandle> drawing_;
    Size size_;
};

// An element of a drawing, or the content of a drawing without a declared size.
class SvgElement final : public VectorImage {
public:
    // `id`: a string literal, "#Regular-M", or null for the whole content.
    SvgElement(Owned<RsvgHandle> drawing, const char* id, Size size)
        : drawing_(std::move(drawing)), id_(id), size_(size) {}

    Size size() const override { return size_; }
    Runtime::Result<void> draw(cairo_t* context) const override {
        const RsvgRectangle area{.x = 0, .y = 0, .width = size_.width, .height = size_.height};
        GError* error = nullptr;
        if (rsvg_handle_render_element(drawing_.get(), context, id_, &area, &error) == FALSE)
            return damaged("drawing", error);
        return {};
    }

private:
    Owned<RsvgHandle> drawing_;
    const char* id_;
    Size size_;
};

DrawingResult elementOf(Owned<RsvgHandle> drawing, const char* id) {
    const auto size = contentSize(drawing.get(), id);
    if (!size)
        return size.error();
    return {std::make_unique<SvgElement>(std::move(drawing), id, *size)};
}

DrawingResult wholeDrawing(Owned<RsvgHandle> drawing) {
    if (const std::optional<Size> size = declaredSize(drawing.get()))
        return {std::make_unique<SvgDrawing>(std::move(drawing), *size)};
    return elementOf(std::move(drawing), nullptr);
}

// Poppler shares colour profiles and fonts between documents without a lock, so only one thread at a time may have
// pages, from before they are read until they are destroyed. Recursive, because a thread may have several pages.
using PopplerLock = std::unique_lock<std::recursive_mutex>;

PopplerLock lockPoppler() {
    static std::recursive_mutex mutex;
    return PopplerLock(mutex);
}

class PdfPage final : public VectorImage {
public:
    PdfPage(PopplerLock lock, Owned<PopplerDocument> document, Owned<PopplerPage> page)
        : lock_(std::move(lock)), document_(std::move(document)), page_(std::move(page)) {}

    Size size() const override {
        Size size;
        poppler_page_get_size(page_.get(), &size.width, &size.height);
        return size;
    }
    Runtime::Result<void> draw(cairo_t* context) const override {
        poppler_page_render(page_.get(), context);
        return {};
    }

private:
    PopplerLock lock_; // released after the page and its document
    Owned<PopplerDocument> document_;
    Owned<PopplerPage> page_;
};

} // namespace

DrawingResult readSvg(std::string_view bytes) {
    auto drawing = svgHandle(bytes);
    if (!drawing)
        return std::move(drawing.error());
    return wholeDrawing(*std::move(drawing));
}

DrawingResult readSymbol(std::string_view bytes) {
    auto drawing = svgHandle(bytes);
    if (!drawing)
        return std::move(drawing.error());
    for (const char* id : {"#Regular-M", "#Regular-S", "#Regular-L"})
        if (rsvg_handle_has_sub(drawing->get(), id) != FALSE)
            return elementOf(*std::move(drawing), id);
    return wholeDrawing(*std::move(drawing));
}

DrawingResult readPdf(std::string_view bytes) {
    PopplerLock lock = lockPoppler();
    GError* error = nullptr;
    const Owned<GBytes> data(g_bytes_new_static(bytes.data(), bytes.size()));
    Owned<PopplerDocument> document(poppler_document_new_from_bytes(data.get(), nullptr, &error));
    if (document == nullptr)
        return damaged("drawing", error);
    Owned<PopplerPage> page(poppler_document_get_page(document.get(), 0));
    if (page == nullptr)
        return damaged("drawing", nullptr);
    return {std::make_unique<PdfPage>(std::move(lock), std::move(document), std::move(page))};
}

} // namespace SourcePictures
