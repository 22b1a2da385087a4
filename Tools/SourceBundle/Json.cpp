#include "SourceBundle/Json.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/MessageText.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <set>
#include <utility>
#include <vector>

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

namespace {

// Follows the parser and warns of members that appear again in the same object.
class RepeatedMembers {
public:
    RepeatedMembers(const fs::path& file, Diagnostics& diagnostics) : file_(file), diagnostics_(diagnostics) {}

    void follow(Json::parse_event_t event, const Json& parsed) {
        if (event == Json::parse_event_t::object_start)
            open_.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            open_.pop_back();
        else if (event == Json::parse_event_t::key)
            if (const auto& name = parsed.get_ref<const std::string&>(); !open_.back().insert(name).second)
                diagnostics_.add(Severity::warning,
                                 {.message = "the member " + quotedName(name) + " appears again; the last one is used",
                                  .file = file_});
    }

private:
    const fs::path& file_;
    Diagnostics& diagnostics_;
    std::vector<std::set<std::string>> open_; // the names of the members of each object that is being read
};

struct TooDeep {};

} // namespace

Runtime::Result<Json> readJsonObject(const fs::path& file, Diagnostics& diagnostics) {
    if (std::error_code failed; fs::is_symlink(fs::symlink_status(file, failed)))
        return Runtime::Error{.message = "is a link, which is not followed", .file = file};
    const auto text = Runtime::readFile(file, maxJsonBytes);
    if (!text)
        return text.error();
    RepeatedMembers members(file, diagnostics);
    try {
        Json json = Json::parse(*text, [&](int depth, Json::parse_event_t event, const Json& parsed) {
            if (depth > maxJsonDepth)
                throw TooDeep();
            members.follow(event, parsed);
            return true; // keep the value
        });
        if (json.is_object())
            return json;
        return errorAt(file, *text, 0, "is not a JSON object");
    } catch (const TooDeep&) {
        return Runtime::Error{.message = "has JSON that is nested too deeply", .file = file};
    } catch (const Json::out_of_range&) {
        return Runtime::Error{.message = "has a number that is too large", .file = file};
    } catch (const Json::parse_error& wrong) { // its `byte` is counted from 1
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
