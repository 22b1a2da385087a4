#include "SourceBundle/EntryPlaces.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/Json.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <simdjson.h>
#include <string_view>

namespace SourceBundle {

std::vector<Runtime::Error> EntryPlaces::find() const {
    const auto bytes = Runtime::readFile(file_, maxJsonBytes);
    if (!bytes)
        return {};
    std::vector<Runtime::Error> places;
    try {
        simdjson::padded_string text(*bytes);
        simdjson::ondemand::parser parser;
        simdjson::ondemand::document document = parser.iterate(text);
        std::size_t at = 0, line = 1, column = 1;
        for (auto member : document.get_object()) {
            if (member.unescaped_key().value() != list_)
                continue;
            places.clear(); // if the list appears again, the last one is used
            for (auto element : member.value().get_array()) {
                const auto begin = static_cast<std::size_t>(element.raw_json_token().value().data() - text.data());
                const std::string_view between(text.data() + at, begin - at);
                const std::size_t lineFeed = between.rfind('\n'); // counted as column 0 of the new line
                line += static_cast<std::size_t>(std::ranges::count(between, '\n'));
                column = lineFeed == between.npos ? column + StringTables::internal::countCharacters(between)
                                                  : StringTables::internal::countCharacters(between.substr(lineFeed));
                at = begin;
                places.push_back({.message = "", .file = file_, .line = line, .column = column});
            }
        }
    } catch (const simdjson::simdjson_error&) { // the places before the fault are right
    }
    return places;
}

Runtime::Error EntryPlaces::of(std::size_t number) {
    if (!places_)
        places_ = find();
    return number <= places_->size() ? (*places_)[number - 1]
                                     : Runtime::Error{.message = "", .file = file_, .line = 1, .column = 1};
}

} // namespace SourceBundle
