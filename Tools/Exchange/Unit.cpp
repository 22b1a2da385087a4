#include "Exchange/Unit.h"

#include "StringTables/internal/Unicode.h"
#include <array>
#include <charconv>

namespace Exchange {

namespace {

constexpr std::string_view pluralStep = "plural";

bool isAlwaysEscaped(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0xFFFE || c == 0xFFFF;
}

// Escapes also the characters in `special`.
void appendEscaped(std::string& out, std::string_view text, std::string_view special) {
    constexpr int hexadecimal = 16;
    while (!text.empty()) {
        const auto [c, bytes] = StringTables::internal::takeCharacterWithBytes(text);
        if (c == '\\') {
            out += "\\\\";
        } else if (isAlwaysEscaped(c) || special.find(bytes) != special.npos) {
            std::array<char, 8> digits;
            const auto end = std::to_chars(digits.begin(), digits.end(), std::uint32_t{c}, hexadecimal).ptr;
            out.append("\\u{").append(digits.begin(), end).append("}");
        } else {
            out += bytes;
        }
    }
}

// Reverses appendEscaped(); no value if an escape is invalid.
std::optional<std::string> unescaped(std::string_view text) {
    constexpr int hexadecimal = 16;
    constexpr std::string_view opening = "\\u{";
    std::string out;
    while (!text.empty()) {
        if (text[0] != '\\') {
            out += text[0];
            text.remove_prefix(1);
        } else if (text.starts_with("\\\\")) {
            out += '\\';
            text.remove_prefix(2);
        } else {
            const std::size_t end = text.find('}');
            if (!text.starts_with(opening) || end == text.npos)
                return std::nullopt;
            std::uint32_t code = 0;
            const char* const stop = text.data() + end;
            const auto read = std::from_chars(text.data() + opening.size(), stop, code, hexadecimal);
            if (read.ec != std::errc() || read.ptr != stop || !StringTables::internal::isScalar(code))
                return std::nullopt;
            std::array<char, 4> utf8;
            out.append(utf8.data(), StringTables::internal::putUtf8(utf8.data(), char32_t{code}));
            text.remove_prefix(end + 1);
        }
    }
    return out;
}

// Moves a plural category from the end of the part to `category`.
void splitCategory(UnitId& id) {
    auto& part = id.part;
    if (part.size() < 2 || part[part.size() - 2] != pluralStep)
        return;
    id.category = Intl::pluralCategoryNamed(part.back());
    if (id.category)
        part.resize(part.size() - 2);
}

} // namespace

std::string textOf(const UnitId& id) {
    std::string out;
    appendEscaped(out, id.table, "[]/");
    std::string steps;
    for (const std::string& step : id.part) {
        steps += steps.empty() ? "" : ".";
        appendEscaped(steps, step, "[]/.");
    }
    if (id.category) {
        steps += steps.empty() ? "" : ".";
        steps.append(pluralStep).append(".").append(Intl::pluralCategoryNames[indexOf(*id.category)]);
    }
    if (!steps.empty())
        out += "[" + steps + "]";
    out += "/";
    appendEscaped(out, id.key, "");
    return out;
}

std::optional<UnitId> unitIdOf(std::string_view text) {
    const std::size_t slash = text.find('/');
    if (slash == text.npos)
        return std::nullopt;
    std::string_view table = text.substr(0, slash);
    UnitId id;
    if (const std::size_t open = table.find('['); open != table.npos) {
        if (!table.ends_with(']'))
            return std::nullopt;
        std::string_view steps = table.substr(open + 1, table.size() - open - 2);
        table = table.substr(0, open);
        for (bool isLast = false; !isLast;) {
            const std::size_t dot = steps.find('.');
            isLast = dot == steps.npos;
            auto step = unescaped(steps.substr(0, dot));
            if (!step)
                return std::nullopt;
            id.part.push_back(*std::move(step));
            steps.remove_prefix(isLast ? steps.size() : dot + 1);
        }
        splitCategory(id);
    }
    auto name = unescaped(table), key = unescaped(text.substr(slash + 1));
    if (!name || !key)
        return std::nullopt;
    id.table = *std::move(name);
    id.key = *std::move(key);
    return id;
}

} // namespace Exchange
