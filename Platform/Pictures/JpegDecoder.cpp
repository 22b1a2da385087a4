// Decodes JPEG files with libjpeg-turbo.
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/LongjmpScope.h"

#include <cstdio> // jpeglib.h needs it
#include <jerror.h>
#include <jpeglib.h>
#include <new>
#include <string>

namespace Pictures {

namespace {

class JpegReader : LongjmpScope {
public:
    JpegReader() {
        jpeg_.err = jpeg_std_error(&errors_);
        errors_.error_exit = [](j_common_ptr jpeg) { of(*jpeg).fail(); };
        errors_.emit_message = [](j_common_ptr jpeg, int level) {
            // A negative level is a warning: data is damaged. Bytes between segments are tolerated.
            if (level < 0 && jpeg->err->msg_code != JWRN_EXTRANEOUS_DATA)
                of(*jpeg).fail();
        };
        jpeg_.client_data = this;
    }
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader() { jpeg_destroy_decompress(&jpeg_); }

    bool readHead(std::span<const std::uint8_t> bytes) {
        return attempt([&] {
            jpeg_CreateDecompress(&jpeg_, JPEG_LIB_VERSION, sizeof jpeg_); // clears all but `err` and `client_data`
            progress_.progress_monitor = [](j_common_ptr jpeg) { limitScans(*jpeg); };
            jpeg_.progress = &progress_;
            jpeg_mem_src(&jpeg_, bytes.data(), bytes.size());
            jpeg_read_header(&jpeg_, TRUE);
            isCmyk_ = jpeg_.jpeg_color_space == JCS_CMYK || jpeg_.jpeg_color_space == JCS_YCCK;
            jpeg_.out_color_space = isCmyk_ ? JCS_CMYK : JCS_EXT_RGBA;
        });
    }
    std::uint32_t width() const { return jpeg_.image_width; }
    std::uint32_t height() const { return jpeg_.image_height; }

    // `pixels` has room for width() x height() pixels.
    bool readPixels(std::uint8_t* pixels) {
        const std::size_t stride = std::size_t{width()} * 4;
        return attempt([&] {
            jpeg_start_decompress(&jpeg_);
            while (jpeg_.output_scanline < jpeg_.output_height) {
                JSAMPROW row = pixels + stride * jpeg_.output_scanline;
                jpeg_read_scanlines(&jpeg_, &row, 1);
                if (isCmyk_)
                    toRgba(row, row + stride);
            }
            jpeg_finish_decompress(&jpeg_);
        });
    }

    bool lacksMemory() const { return errors_.msg_code == JERR_OUT_OF_MEMORY; }
    std::string reason() const {
        if (hasTooManyScans_)
            return "more than " + std::to_string(maxScans) + " scans";
        char text[JMSG_LENGTH_MAX] = "";
        errors_.format_message(reinterpret_cast<j_common_ptr>(const_cast<jpeg_decompress_struct*>(&jpeg_)), text);
        return text;
    }

private:
    static JpegReader& of(const jpeg_common_struct& jpeg) { return *static_cast<JpegReader*>(jpeg.client_data); }

    // A small file can have thousands of scans, each a pass over a large picture; cameras and programs write about ten.
    static constexpr int maxScans = 200;
    static void limitScans(const jpeg_common_struct& jpeg) {
        JpegReader& self = of(jpeg);
        self.hasTooManyScans_ = self.jpeg_.input_scan_number > maxScans;
        if (self.hasTooManyScans_)
            self.fail();
    }

    // Converts CMYK in place: red is (255 - cyan) * (255 - black) / 255, and so on. Files with an Adobe marker store
    // these differences already.
    void toRgba(std::uint8_t* pixel, const std::uint8_t* end) const {
        const unsigned flip = jpeg_.saw_Adobe_marker ? 0 : 255; // 255 - x is x ^ 255
        for (; pixel != end; pixel += 4) {
            const unsigned notBlack = pixel[3] ^ flip;
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = static_cast<std::uint8_t>(((pixel[channel] ^ flip) * notBlack + 127) / 255);
            pixel[3] = 255;
        }
    }

    jpeg_decompress_struct jpeg_{};
    jpeg_error_mgr errors_{};
    jpeg_progress_mgr progress_{};
    bool isCmyk_ = false;
    bool hasTooManyScans_ = false;
};

} // namespace

Runtime::Result<Bitmap> decodeJpeg(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels) {
    JpegReader reader;
    const auto damaged = [&] {
        if (reader.lacksMemory())
            throw std::bad_alloc();
        return Runtime::Error{.message = "is a damaged JPEG: " + reader.reason(), .file = {}};
    };
    if (!reader.readHead(bytes))
        return damaged();
    auto bitmap = blank(reader.width(), reader.height(), maxPixels);
    if (bitmap && !reader.readPixels(bitmap->pixels.data()))
        return damaged();
    return bitmap;
}

} // namespace Pictures
