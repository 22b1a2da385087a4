// Exchange/Json.h
// A JSON document that is edited in place: unchanged parts keep their bytes, and additions follow the document's
// layout.
// Text: UTF-8. Threads: one at a time. Ownership: the document owns its nodes, which never move.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

struct JsonMember;

// How the members of a document are written, so that added members are written in the same way.
struct JsonLayout {
    std::string lineBreak;        // empty in a single-line document
    std::string indent;           // per level
    std::string separator = ": "; // between a name and its value
    bool escapesSlashes = false;
};

class JsonNode {
public:
    // The last member with that name, or null. Members are parsed at the first access.
    [[nodiscard]] JsonNode* find(std::string_view name);
    // The same, but adds an empty object if there is none: in alphabetical order if the members are sorted, else last.
    // A node that is not an object becomes one.
    JsonNode& member(std::string_view name);
    void remove(std::string_view name);
    // The names of all members in order.
    [[nodiscard]] std::vector<std::string> names();
    // All members in order; the last of equal names counts.
    [[nodiscard]] std::list<JsonMember>& members();
    // The value if this is a string, or no value.
    [[nodiscard]] std::optional<std::string> string() const;
    // Replaces the value by that string. If the value already is that string, its bytes are kept.
    void set(std::string_view text);
    // Adds copies of all members of `other` except `without` to this node, which has no members. `other` is a node of
    // the same document; its members are copied as they were read, without changes.
    void copyMembers(JsonNode& other, std::string_view without);

private:
    friend class JsonDocument;

    bool isObject() const noexcept { return !isString_ && (raw_.empty() || raw_.starts_with('{')); }
    void expand(); // parses the members, once
    void write(std::string& out, const JsonLayout& layout, std::size_t depth) const;

    std::string_view raw_;    // its bytes in the document; empty for an added node
    bool isExpanded_ = false; // expand() was called, or there is nothing to parse
    bool isString_ = false;   // the value was set to `text_`
    std::string text_;
    std::string_view end_; // white space before the closing brace
    std::list<JsonMember> members_;
};

struct JsonMember {
    std::string name;
    // Parts of the document: the white space before the name, the quoted name, the colon with the white space around
    // it, and the white space between the value and the comma. Empty for an added member.
    std::string_view before, literal, separator, after;
    JsonNode value;
};

class JsonDocument {
public:
    // Reads a UTF-8 document; a byte-order mark is kept. Fails if the JSON is invalid.
    [[nodiscard]] static Runtime::Result<JsonDocument> read(std::string text);

    [[nodiscard]] JsonNode& root() noexcept { return *root_; }
    // The edited document.
    [[nodiscard]] std::string text() const;

private:
    // On the heap, so that they stay in place when the document is moved.
    std::unique_ptr<const std::string> text_;
    std::unique_ptr<JsonNode> root_;
    std::size_t begin_ = 0, end_ = 0; // of the root
    JsonLayout layout_;
};

} // namespace Exchange
