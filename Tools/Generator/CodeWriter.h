// Generator/CodeWriter.h
// Code as it grows: lines with named parts, namespaces that open and close by themselves, lists that are wrapped.
// Text: UTF-8. Threads: values.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Generator {

class CodeWriter {
public:
    using Values = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    // Begins with the line that says that the file is not to be edited. `module` is the value of {{module}} in every
    // pattern.
    explicit CodeWriter(std::string_view module);

    // Adds `pattern` and a line end, with every {{name}} replaced by the value of that name. A name without a value
    // stops the process. Values are not looked into.
    void add(std::string_view pattern, Values values = {});
    // Adds "HEAD ITEM, ITEM, ... TAIL", broken between items where the line would be too long; continued below the
    // first item.
    void addList(std::string_view head, const std::vector<std::string>& items, std::string_view tail);
    // Adds "HEAD = VALUE", broken behind the sign where the line would be too long.
    void addAssignment(std::string_view head, std::string_view value);
    // Adds the text as comment lines, broken between words where they would be too long; continued lines are indented.
    void addComment(std::string_view text);
    // Adds a line for each quoted header, in the order that clang-format wants.
    void addIncludes(std::vector<std::string> headers);

    // What follows is in the namespace of that name, given whole; nothing changes if it is already.
    void enter(const std::string& nameSpace);
    void leave();

    // The code; closes what is open.
    [[nodiscard]] std::string take();

    static constexpr std::size_t maxWidth = 120; // in columns

private:
    std::string_view valueOf(std::string_view name, Values values) const;

    std::string module_;
    std::string code_;
    std::string nameSpace_; // the open one
};

// A file of one pattern whose only name is {{module}}.
[[nodiscard]] std::string filled(std::string_view pattern, std::string_view module);

} // namespace Generator
