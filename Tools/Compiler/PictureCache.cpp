#include "Compiler/PictureCache.h"

#include "AssetCatalog/internal/Catalog.h"
#include "Compiler/Records.h"
#include <charconv>
#include <iterator>

namespace Compiler {

namespace fs = std::filesystem;
using AssetCatalog::Picture;

namespace {

// The shortest text that std::from_chars() reads as the same number.
std::string decimal(double number) {
    char digits[32];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr};
}

} // namespace

PictureCache PictureCache::of(const fs::path& bundle, std::string_view mark) {
    auto catalog = Runtime::OpenFile::open(bundle / AssetCatalog::fileName, AssetCatalog::maxBytes);
    if (!catalog)
        return PictureCache(std::nullopt);
    PictureCache cache(*std::move(catalog));
    eachLine(mark, [&cache](std::string_view line) { cache.readRecord(line); });
    return cache;
}

// Reads a line of cacheList(). Skips lines that are not about pictures or are invalid.
void PictureCache::readRecord(std::string_view line) {
    Fields fields(line);
    const std::string key(fields.word());
    Record record;
    Picture& picture = record.picture;
    fields.read(record.count);
    fields.read(picture.fit.scale);
    fields.read(picture.width);
    fields.read(picture.height);
    fields.read(picture.points.width);
    fields.read(picture.points.height);
    fields.read(record.offset);
    fields.read(record.size);
    fields.read(record.hash, hexadecimal);
    if (fields.isSound())
        pictures_[key].push_back(std::move(record));
}

std::string PictureCache::keyOf(std::string_view bytes, const SourcePictures::Purpose& purpose) {
    static const std::string version = SourcePictures::converterVersion();
    return longHashOf(version + (purpose.isSymbol ? " symbol " : " ") + std::to_string(purpose.scale) +
                      (purpose.preservesVector ? " preserved " : " ") + longHashOf(bytes));
}

std::optional<std::vector<Picture>> PictureCache::find(const std::string& key) const {
    const auto found = pictures_.find(key);
    if (found == pictures_.end())
        return std::nullopt;
    std::vector<Picture> pictures;
    for (const Record& record : found->second) {
        if (record.count != found->second.size() || record.offset > catalog_->size() ||
            record.size > catalog_->size() - record.offset)
            return std::nullopt;
        std::string bytes(record.size, '\0');
        const auto filled = catalog_->read(reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size(), record.offset);
        if (!filled || *filled != bytes.size() || hashOf(bytes) != record.hash)
            return std::nullopt;
        pictures.push_back(record.picture);
        pictures.back().bytes = AssetCatalog::shared(std::move(bytes));
    }
    return pictures;
}

std::string cacheList(const MadePictures& made, const AssetCatalog::BuiltCatalog& catalog) {
    std::string list;
    for (const auto& [key, pictures] : made) {
        const std::size_t begin = list.size();
        for (const Picture& picture : pictures) {
            const auto stored = catalog.offsets.find(*picture.bytes);
            if (stored == catalog.offsets.end()) { // for this scale the catalog has the picture of another file
                list.resize(begin);
                break;
            }
            list.append(key);
            list.append(" ").append(std::to_string(pictures.size()));
            list.append(" ").append(std::to_string(picture.fit.scale));
            list.append(" ").append(std::to_string(picture.width));
            list.append(" ").append(std::to_string(picture.height));
            list.append(" ").append(decimal(picture.points.width));
            list.append(" ").append(decimal(picture.points.height));
            list.append(" ").append(std::to_string(stored->second));
            list.append(" ").append(std::to_string(picture.bytes->size()));
            list.append(" ").append(hex(hashOf(*picture.bytes))).append("\n");
        }
    }
    return list;
}

} // namespace Compiler
