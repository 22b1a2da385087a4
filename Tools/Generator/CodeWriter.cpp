#include "Generator/CodeWriter.h"

#include <algorithm>

namespace Generator {

CodeWriter::CodeWriter(std::string_view module) : module_(module) {
    add("// Made from the resources of the module {{module}}; do not edit.");
}

void CodeWriter::add(std::string_view pattern, Values values) {
    for (std::size_t open; (open = pattern.find("{{")) != std::string_view::npos;) {
        const std::size_t close = pattern.find("}}", open);
        const std::string_view name = pattern.substr(open + 2, close - open - 2);
        const auto found = std::ranges::find(values, name, &Values::value_type::first);
        code_.append(pattern.substr(0, open)).append(found == values.end() ? module_ : found->second);
        pattern.remove_prefix(close + 2);
    }
    code_.append(pattern).append("\n");
}

void CodeWriter::addList(std::string_view head, const std::vector<std::string>& items, std::string_view tail) {
    const bool isHeadAlone = head.ends_with('\n');
    const std::string indent(isHeadAlone ? 4 : head.size(), ' ');
    code_ += head;
    std::string line = isHeadAlone ? indent : std::string();
    std::size_t width = isHeadAlone ? 0 : head.size();
    for (const std::string& item : items) {
        const bool isLast = &item == &items.back();
        const std::string piece = item + (isLast ? std::string(tail) : ",");
        const bool isFirst = line.find_first_not_of(' ') == std::string::npos;
        if (!isFirst && width + line.size() + 1 + piece.size() > maxWidth) {
            code_.append(line).append("\n");
            line = indent + piece;
            width = 0;
        } else {
            line.append(isFirst ? "" : " ").append(piece);
        }
    }
    code_.append(line).append("\n");
}

void CodeWriter::addBlankLine() {
    code_ += '\n';
}

void CodeWriter::enter(const std::string& nameSpace) {
    if (nameSpace == nameSpace_)
        return;
    leave();
    add("\nnamespace {{name}} {\n", {{"name", nameSpace}});
    nameSpace_ = nameSpace;
}

void CodeWriter::leave() {
    if (!nameSpace_.empty())
        add("\n} // namespace {{name}}", {{"name", nameSpace_}});
    nameSpace_.clear();
}

std::string CodeWriter::take() {
    leave();
    return std::move(code_);
}

} // namespace Generator
