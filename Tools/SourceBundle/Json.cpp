#include "SourceBundle/Json.h"

#include "Runtime/internal/File.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>

namespace SourceBundle {

namespace fs = std::filesystem;

Runtime::Error errorAt(const fs::path& file, std::string_view text, std::size_t byte, std::string message) {
    const std::string_view before = text.substr(0, std::min(byte, text.size()));
    const auto lines = static_cast<std::size_t>(std::ranges::count(before, '\n'));
    const std::size_t lineFeed = before.rfind('\n');
    const std::string_view line = lineFeed == before.npos ? before : before.substr(lineFeed + 1);
    return {.message = std::move(message),
            .file = file,
            .line = lines + 1,
            .column = StringTables::internal::countCharacters(line) + 1};
}

Runtime::Result<Json> readJsonObject(const fs::path& file) {
    if (std::error_code failed; fs::is_symlink(fs::symlink_status(file, failed)))
        return Runtime::Error{.message = "is a link, which is not followed", .file = file};
    const auto text = Runtime::readFile(file, maxJsonBytes);
    if (!text)
        return text.error();
    try {
        Json json = Json::parse(*text);
        if (json.is_object())
            return json;
        return errorAt(file, *text, 0, "is not a JSON object");
    } catch (const Json::out_of_range&) {
        return errorAt(file, *text, 0, "has a number that is too large");
    } catch (const Json::parse_error& wrong) {
        return errorAt(file, *text, wrong.byte == 0 ? 0 : wrong.byte - 1, "invalid JSON: unexpected token");
    }
}

const Json& member(const Json& object, const char* name) {
    static const Json none;
    if (!object.is_object())
        return none;
    const auto found = object.find(name);
    return found == object.end() ? none : *found;
}

std::string text(const Json& object, const char* name) {
    const Json& found = member(object, name);
    return found.is_string() ? found.get<std::string>() : std::string();
}

double number(const Json& object, const char* name) {
    const Json& found = member(object, name);
    return found.is_number() ? found.get<double>() : 0;
}

} // namespace SourceBundle
