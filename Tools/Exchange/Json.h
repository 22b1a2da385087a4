// Exchange/Json.h
// A JSON document that is edited in place: what is not changed keeps its bytes, and what is added takes the layout of
// the rest.
// Text: UTF-8. Threads: one at a time. Ownership: nodes belong to the document and stay where they are.
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

// How a document is laid out, as its first members show.
struct JsonLayout {
    std::string lineBreak;        // empty in a document of one line
    std::string indent;           // of one level
    std::string separator = ": "; // between a name and its value
    bool escapesSlashes = false;
};

class JsonNode {
public:
    [[nodiscard]] bool isObject() const noexcept { return !isString_ && (raw_.empty() || raw_.starts_with('{')); }
    // The member `name` of an object, the last of that name, or null. Members are read when they are first looked for.
    [[nodiscard]] JsonNode* find(std::string_view name);
    // The same; where there is none, an empty object is added: in alphabetical order if the others have it, else last.
    // A node that is no object becomes one.
    JsonNode& member(std::string_view name);
    void remove(std::string_view name);
    [[nodiscard]] std::vector<std::string> names();
    // The value of a string, or no value.
    [[nodiscard]] std::optional<std::string> string() const;
    // Makes it that string. The bytes of an equal one stay.
    void set(std::string_view text);
    // Adds the members that `other` has in the document, but for `without`.
    void copyMembers(JsonNode& other, std::string_view without);

private:
    friend class JsonDocument;

    void expand();
    void write(std::string& out, const JsonLayout& layout, std::size_t depth) const;

    std::string_view raw_; // its bytes in the document; empty if it was added
    bool isExpanded_ = false;
    bool isString_ = false; // set to `text_`
    std::string text_;
    std::string_view end_; // white space before the closing brace
    std::list<JsonMember> members_;
};

struct JsonMember {
    std::string name;
    // Bytes of the document: white space, the name with its quotation marks, what separates it from its value, and
    // white space behind that. Empty if the member was added.
    std::string_view before, literal, separator, after;
    JsonNode value;
};

class JsonDocument {
public:
    // Reads a document in UTF-8, whose byte-order mark stays. An error if it is not valid.
    [[nodiscard]] static Runtime::Result<JsonDocument> read(std::string text);

    [[nodiscard]] JsonNode& root() noexcept { return *root_; }
    // The document as it is now.
    [[nodiscard]] std::string text() const;

private:
    std::unique_ptr<const std::string> text_; // never moves
    std::unique_ptr<JsonNode> root_;
    std::size_t begin_ = 0, end_ = 0; // of the root
    JsonLayout layout_;
};

} // namespace Exchange
