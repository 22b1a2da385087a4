// Generator/CodeWriter.h
// Writes code: templates with named placeholders, namespaces that are opened and closed as needed, wrapped lists.
// Text: UTF-8. Threads: one at a time.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Generator {

// The beginning of the first line of every generated file.
inline constexpr std::string_view generatedMark = "// Generated from the resources of the module ";

class CodeWriter {
public:
    using Values = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    // Starts with a do-not-edit line. `module` is the value of {{module}} in all patterns.
    explicit CodeWriter(std::string_view module);

    // Adds `pattern` and a line feed. Replaces every {{name}} with its value; an unknown name stops the process.
    // Placeholders in values are not replaced.
    void add(std::string_view pattern, Values values = {});
    // Adds `head`, the items (at least one) with ", " between them, `tail` and a line feed. Wraps between items;
    // continuation lines are aligned with the first item.
    void addList(std::string_view head, const std::vector<std::string>& items, std::string_view tail);
    // Adds "HEAD = VALUE" and a line feed, wrapped after the "=" if the line would be too long.
    void addAssignment(std::string_view head, std::string_view value);
    // Adds the text as a comment, wrapped between words; continuation lines are indented.
    void addComment(std::string_view text);
    // Adds an #include line for each header, sorted as by clang-format.
    void addIncludes(std::vector<std::string> headers);

    // Opens the namespace with that qualified name and closes another one if open. Does nothing if it is already open.
    void enter(const std::string& nameSpace);
    // Closes the open namespace, if there is one.
    void leave();

    // Closes the open namespace and returns the code.
    [[nodiscard]] std::string take();

    static constexpr std::size_t maxWidth = 120; // in columns

private:
    std::string_view valueOf(std::string_view name, Values values) const;

    std::string module_;
    std::string code_;
    std::string nameSpace_; // the open one; empty if none is open
};

// A whole file made from one pattern, in which only {{module}} is replaced; it begins with the do-not-edit line.
[[nodiscard]] std::string filled(std::string_view pattern, std::string_view module);

} // namespace Generator
