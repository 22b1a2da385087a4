#include "Exchange/Json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace Exchange {

namespace {

constexpr std::string_view blanks = " \t\r\n";

// Each takes an offset in a valid document and returns the end of the construct that begins there.
std::size_t blanksEnd(std::string_view text, std::size_t at) {
    return std::min(text.find_first_not_of(blanks, at), text.size());
}

std::size_t stringEnd(std::string_view text, std::size_t at) {
    for (++at; text[at] != '"'; ++at)
        if (text[at] == '\\')
            ++at;
    return at + 1;
}

std::size_t valueEnd(std::string_view text, std::size_t at) {
    if (text[at] == '"')
        return stringEnd(text, at);
    if (text[at] != '{' && text[at] != '[')
        return std::min(text.find_first_of(",]} \t\r\n", at), text.size());
    std::size_t depth = 0;
    do {
        at = text.find_first_of("\"{}[]", at);
        if (text[at] == '"') {
            at = stringEnd(text, at);
            continue;
        }
        depth = text[at] == '{' || text[at] == '[' ? depth + 1 : depth - 1;
        ++at;
    } while (depth != 0);
    return at;
}

std::string unquoted(std::string_view literal) {
    return nlohmann::json::parse(literal).get<std::string>();
}

std::string quoted(std::string_view text, const JsonLayout& layout) {
    std::string literal = nlohmann::json(text).dump();
    if (layout.escapesSlashes)
        for (std::size_t at = literal.find('/'); at != literal.npos; at = literal.find('/', at + 2))
            literal.insert(at, 1, '\\');
    return literal;
}

void appendLine(std::string& out, const JsonLayout& layout, std::size_t depth) {
    if (layout.lineBreak.empty())
        return;
    out += layout.lineBreak;
    for (; depth != 0; --depth)
        out += layout.indent;
}

} // namespace

void JsonNode::expand() {
    if (std::exchange(isExpanded_, true) || !raw_.starts_with('{'))
        return;
    std::size_t at = 1;
    for (;;) {
        const std::size_t key = blanksEnd(raw_, at);
        if (raw_[key] == '}') {
            end_ = raw_.substr(at, key - at);
            return;
        }
        const std::size_t keyEnd = stringEnd(raw_, key);
        const std::size_t value = blanksEnd(raw_, blanksEnd(raw_, keyEnd) + 1); // after the colon
        const std::size_t end = valueEnd(raw_, value);
        JsonMember& member = members_.emplace_back();
        member.before = raw_.substr(at, key - at);
        member.literal = raw_.substr(key, keyEnd - key);
        member.separator = raw_.substr(keyEnd, value - keyEnd);
        member.name = unquoted(member.literal);
        member.value.raw_ = raw_.substr(value, end - value);
        at = blanksEnd(raw_, end);
        if (raw_[at] == '}') {
            end_ = raw_.substr(end, at - end);
            return;
        }
        member.after = raw_.substr(end, at - end);
        ++at; // the comma
    }
}

JsonNode* JsonNode::find(std::string_view name) {
    expand();
    const auto found = std::find_if(members_.rbegin(), members_.rend(),
                                    [name](const JsonMember& member) { return member.name == name; });
    return found == members_.rend() ? nullptr : &found->value;
}

JsonNode& JsonNode::member(std::string_view name) {
    if (JsonNode* const found = find(name))
        return *found;
    if (!isObject()) {
        raw_ = {};
        isString_ = false;
    }
    auto place = members_.end();
    if (std::ranges::is_sorted(members_, {}, &JsonMember::name))
        place = std::ranges::upper_bound(members_, name, {}, &JsonMember::name);
    const auto added = members_.emplace(place);
    added->name = name;
    return added->value;
}

void JsonNode::remove(std::string_view name) {
    expand();
    std::erase_if(members_, [name](const JsonMember& member) { return member.name == name; });
}

std::vector<std::string> JsonNode::names() {
    expand();
    std::vector<std::string> all;
    for (const JsonMember& member : members_)
        all.push_back(member.name);
    return all;
}

std::list<JsonMember>& JsonNode::members() {
    expand();
    return members_;
}

std::optional<std::string> JsonNode::string() const {
    if (isString_)
        return text_;
    return raw_.starts_with('"') ? std::optional(unquoted(raw_)) : std::nullopt;
}

void JsonNode::set(std::string_view text) {
    if (string() == text)
        return;
    text_ = text;
    isString_ = true;
    isExpanded_ = true; // it has no members any more
    members_.clear();
}

void JsonNode::copyMembers(JsonNode& other, std::string_view without) {
    other.expand();
    for (const JsonMember& from : other.members_)
        if (from.name != without)
            member(from.name).raw_ = from.value.raw_;
}

void JsonNode::write(std::string& out, const JsonLayout& layout, std::size_t depth) const {
    if (isString_) {
        out += quoted(text_, layout);
        return;
    }
    if (!isObject() || (!isExpanded_ && !raw_.empty())) {
        out += raw_;
        return;
    }
    out += '{';
    for (const JsonMember& member : members_) {
        if (&member != &members_.front())
            out += ',';
        if (member.literal.empty()) {
            appendLine(out, layout, depth + 1);
            out.append(quoted(member.name, layout)).append(layout.separator);
        } else {
            out.append(member.before).append(member.literal).append(member.separator);
        }
        member.value.write(out, layout, depth + 1);
        out += member.after;
    }
    if (!members_.empty() && members_.back().literal.empty() && end_.find('\n') == end_.npos)
        appendLine(out, layout, depth);
    else
        out += end_;
    out += '}';
}

Runtime::Result<JsonDocument> JsonDocument::read(std::string text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    JsonDocument document;
    document.text_ = std::make_unique<const std::string>(std::move(text));
    const std::string_view all = *document.text_;
    const std::size_t begin = all.starts_with(mark) ? mark.size() : 0;
    if (!nlohmann::json::accept(all.substr(begin)))
        return Runtime::Error{"invalid JSON", {}};
    document.begin_ = blanksEnd(all, begin);
    document.end_ = valueEnd(all, document.begin_);
    document.root_ = std::make_unique<JsonNode>();
    document.root_->raw_ = all.substr(document.begin_, document.end_ - document.begin_);
    document.root_->expand();
    JsonLayout& layout = document.layout_;
    layout.escapesSlashes = all.find("\\/") != all.npos;
    if (!document.root_->members_.empty()) {
        const JsonMember& first = document.root_->members_.front();
        layout.separator = first.separator;
        if (first.before.starts_with("\r\n"))
            layout.lineBreak = "\r\n";
        else if (first.before.starts_with('\n'))
            layout.lineBreak = "\n";
        layout.indent = first.before.substr(layout.lineBreak.size());
    }
    return document;
}

std::string JsonDocument::text() const {
    std::string out = text_->substr(0, begin_);
    root_->write(out, layout_, 0);
    return out.append(*text_, end_);
}

} // namespace Exchange
