#include "SourcePictures/Converted.h"

#include "AssetCatalog/internal/Catalog.h" // maxPixels
#include "SourcePictures/GlibPointers.h"
#include <algorithm>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <new>

namespace SourcePictures {

namespace {

// The name of gdk-pixbuf's loader for the format.
const char* loaderNameOf(Format format) {
    switch (format) {
    case Format::gif:
        return "gif";
    case Format::tiff:
        return "tiff";
    case Format::webp:
        return "webp";
    case Format::heif:
        return "heif/avif";
    case Format::png:
    case Format::jpeg:
    case Format::svg:
    case Format::pdf:
        break;
    }
    return "";
}

// The size that the header gives, or at least one pixel.
struct Header {
    gint width = 1;
    gint height = 1;

    bool isTooLarge() const {
        return static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) > AssetCatalog::maxPixels;
    }
};

// Called when the header is read. A picture that is too large is decoded as one pixel and rejected.
void takeHeader(GdkPixbufLoader* loader, gint width, gint height, gpointer out) {
    auto& header = *static_cast<Header*>(out);
    header = {std::max(header.width, width), std::max(header.height, height)};
    if (header.isTooLarge())
        gdk_pixbuf_loader_set_size(loader, 1, 1);
}

// The loader would accept a truncated file. Bytes 4 to 7 are the number of bytes after them, in little-endian order;
// every file that formatOf() recognizes as WebP has at least 12 bytes.
bool isCutOffWebp(std::string_view bytes) {
    std::uint64_t fullSize = 8;
    for (std::size_t i = 0; i < 4; ++i)
        fullSize += static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[4 + i])) << (8 * i);
    return fullSize > bytes.size();
}

// The libraries print warnings to standard error; their errors contain the same information.
void silenceWarnings() {
    static const bool isDone = [] {
        g_log_set_writer_func([](GLogLevelFlags, const GLogField*, gsize, gpointer) { return G_LOG_WRITER_HANDLED; },
                              nullptr, nullptr);
        return true;
    }();
    static_cast<void>(isDone);
}

// `error` may be null.
bool isLackOfMemory(const GError* error) {
    return g_error_matches(error, GDK_PIXBUF_ERROR, GDK_PIXBUF_ERROR_INSUFFICIENT_MEMORY) != FALSE;
}

// Whether there is memory for the pixels of the picture.
bool fitsIntoMemory(const Header& header) {
    return Owned<GdkPixbuf>(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, header.width, header.height)) != nullptr;
}

Runtime::Result<AssetCatalog::Picture> asPng(GdkPixbuf* pixels) {
    gchar* buffer = nullptr;
    gsize size = 0;
    GError* error = nullptr;
    if (gdk_pixbuf_save_to_buffer(pixels, &buffer, &size, "png", &error, nullptr) == FALSE) {
        const Owned<GError> owned(error);
        if (isLackOfMemory(error))
            throw std::bad_alloc();
        return Runtime::Error{.message = std::string("cannot be converted to PNG: ") + error->message};
    }
    const Owned<gchar> owned(buffer);
    AssetCatalog::Picture picture;
    picture.width = static_cast<std::uint32_t>(gdk_pixbuf_get_width(pixels));
    picture.height = static_cast<std::uint32_t>(gdk_pixbuf_get_height(pixels));
    picture.bytes = AssetCatalog::shared({buffer, size});
    return picture;
}

} // namespace

Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes, Format format) {
    silenceWarnings();
    const std::string name = loaderNameOf(format);
    if (format == Format::webp && isCutOffWebp(bytes))
        return damaged(name + " picture", nullptr);
    GError* error = nullptr;
    const Owned<GdkPixbufLoader> loader(gdk_pixbuf_loader_new_with_type(name.c_str(), &error));
    if (loader == nullptr) {
        const Owned<GError> owned(error);
        return Runtime::Error{.message = "is in the format " + name + ", for which no gdk-pixbuf loader is installed"};
    }
    Header header;
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(takeHeader), &header);
    const bool isWritten =
        gdk_pixbuf_loader_write(loader.get(), reinterpret_cast<const guchar*>(bytes.data()), bytes.size(), &error);
    // Close the loader in any case; the first of two errors is reported.
    const bool isClosed = gdk_pixbuf_loader_close(loader.get(), isWritten ? &error : nullptr);
    Owned<GError> ownedError(error);
    if (header.isTooLarge())
        return Runtime::Error{.message = "is a picture with more pixels than a catalog may contain"};
    if (isLackOfMemory(error)) {
        if (!fitsIntoMemory(header))
            throw std::bad_alloc();
        ownedError.reset(); // the GIF loader reports this, too, if a frame has no width or height
    }
    GdkPixbuf* pixels = isWritten && isClosed ? gdk_pixbuf_loader_get_pixbuf(loader.get()) : nullptr;
    return pixels == nullptr ? damaged(name + " picture", ownedError.release()) : asPng(pixels);
}

} // namespace SourcePictures
