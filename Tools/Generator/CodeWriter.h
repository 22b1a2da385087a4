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

    // Begins with the line that tells readers to keep their hands off. `module` is the value of {{module}} in every
    // pattern.
    explicit CodeWriter(std::string_view module);

    // Adds `pattern` and a line end, with every {{name}} replaced by the value of that name. Values are not looked
    // into.
    void add(std::string_view pattern, Values values = {});
    // Adds "HEAD ITEM, ITEM, ... TAIL", broken between items where the line would be too long; continued below the
    // first item, or indented if the head is a line of its own.
    void addList(std::string_view head, const std::vector<std::string>& items, std::string_view tail);
    void addBlankLine();

    // What follows is in the namespace of that name, given whole; nothing changes if it is already.
    void enter(const std::string& nameSpace);
    void leave();

    // The code; closes what is open.
    [[nodiscard]] std::string take();

    static constexpr std::size_t maxWidth = 120;

private:
    std::string module_;
    std::string code_;
    std::string nameSpace_; // the open one
};

} // namespace Generator
