// Decodes PNG files with libpng.
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/LongjmpScope.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <png.h>
#include <string>

namespace Pictures {

namespace {

class PngReader : LongjmpScope {
public:
    explicit PngReader(std::span<const std::uint8_t> bytes) : rest_(bytes) {
        const auto failed = [](png_structp png, png_const_charp reason) {
            PngReader& self = *static_cast<PngReader*>(png_get_error_ptr(png));
            // Copy the text: libpng may have built it in a stack frame that longjmp() leaves.
            std::snprintf(self.reason_, sizeof self.reason_, "%s", reason);
            self.fail();
        };
        const auto allocate = [](png_structp png, png_alloc_size_t size) {
            void* const memory = std::malloc(size);
            static_cast<PngReader*>(png_get_mem_ptr(png))->lacksMemory_ |= memory == nullptr;
            return memory;
        };
        attempt([&] {
            png_ = png_create_read_struct_2(
                PNG_LIBPNG_VER_STRING, this, failed, [](png_structp, png_const_charp) {}, this, allocate,
                [](png_structp, png_voidp memory) { std::free(memory); });
            info_ = png_ == nullptr ? nullptr : png_create_info_struct(png_);
        });
    }
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
    ~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }

    bool readHead() {
        if (info_ == nullptr)
            return false;
        return attempt([this] {
            png_set_read_fn(png_, this, [](png_structp png, png_bytep to, std::size_t size) {
                static_cast<PngReader*>(png_get_io_ptr(png))->give(to, size);
            });
            // Skip ancillary chunks except for tRNS (transparency), and that, too, if its checksum is wrong. Any other
            // error is fatal.
            png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
            png_set_crc_action(png_, PNG_CRC_ERROR_QUIT, PNG_CRC_WARN_DISCARD);
            png_set_benign_errors(png_, 0);
            png_read_info(png_, info_);
        });
    }
    std::uint32_t width() const { return png_get_image_width(png_, info_); }
    std::uint32_t height() const { return png_get_image_height(png_, info_); }

    // `pixels` has room for width() x height() pixels.
    bool readPixels(std::uint8_t* pixels) {
        return attempt([this, pixels] {
            png_set_expand(png_); // palettes and small samples to bytes, the transparent colour to alpha
            png_set_strip_16(png_);
            png_set_gray_to_rgb(png_);
            png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
            const int passes = png_set_interlace_handling(png_);
            png_read_update_info(png_, info_);
            const std::size_t stride = png_get_rowbytes(png_, info_);
            if (stride != std::size_t{width()} * 4)
                png_error(png_, "unexpected row size");
            for (int pass = 0; pass < passes; ++pass)
                for (std::size_t row = 0; row < height(); ++row)
                    png_read_row(png_, pixels + row * stride, nullptr);
            png_read_end(png_, nullptr); // the chunks after the pixels, up to IEND
        });
    }

    // Whether an allocation of libpng failed.
    bool lacksMemory() const { return lacksMemory_; }
    const char* reason() const { return reason_; }

private:
    void give(std::uint8_t* to, std::size_t size) {
        if (size > rest_.size())
            png_error(png_, "unexpected end of file");
        std::memcpy(to, rest_.data(), size);
        rest_ = rest_.subspan(size);
    }

    std::span<const std::uint8_t> rest_;
    char reason_[128] = "";
    bool lacksMemory_ = false;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

} // namespace

Runtime::Result<Bitmap> decodePng(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels) {
    PngReader reader(bytes);
    const auto damaged = [&] {
        if (reader.lacksMemory())
            throw std::bad_alloc();
        return Runtime::Error{.message = std::string("is a damaged PNG: ") + reader.reason(), .file = {}};
    };
    if (!reader.readHead())
        return damaged();
    auto bitmap = blank(reader.width(), reader.height(), maxPixels);
    if (bitmap && !reader.readPixels(bitmap->pixels.data()))
        return damaged();
    return bitmap;
}

} // namespace Pictures
