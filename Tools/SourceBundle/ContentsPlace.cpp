#include "SourceBundle/ContentsPlace.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/Json.h"
#include <simdjson.h>
#include <string_view>

namespace SourceBundle {

namespace {

// The byte offset of the element; throws if it does not exist.
std::size_t elementOffset(simdjson::padded_string& text, const std::string& list, std::size_t number) {
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document = parser.iterate(text);
    for (auto element : document.find_field_unordered(list).get_array())
        if (--number == 0)
            return static_cast<std::size_t>(std::string_view(element.raw_json_token()).data() - text.data());
    throw simdjson::simdjson_error(simdjson::INDEX_OUT_OF_BOUNDS);
}

} // namespace

Runtime::Error entryPlace(const std::filesystem::path& file, const std::string& list, std::size_t number) {
    auto bytes = Runtime::readFile(file, maxJsonBytes);
    if (!bytes)
        return {.message = "", .file = file, .line = 1, .column = 1};
    simdjson::padded_string text(*bytes);
    try {
        return errorAt(file, *bytes, elementOffset(text, list, number), "");
    } catch (const simdjson::simdjson_error&) {
        return {.message = "", .file = file, .line = 1, .column = 1};
    }
}

} // namespace SourceBundle
