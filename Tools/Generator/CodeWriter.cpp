#include "Generator/CodeWriter.h"

#include "Generator/CodeText.h"
#include "Runtime/Fatal.h"
#include <algorithm>

namespace Generator {

CodeWriter::CodeWriter(std::string_view module) : module_(module) {
    add(std::string(generatedMark) + "{{module}}; do not edit.");
}

void CodeWriter::add(std::string_view pattern, Values values) {
    for (std::size_t open = pattern.find("{{"); open != pattern.npos; open = pattern.find("{{")) {
        const std::size_t close = pattern.find("}}", open);
        const std::string_view name = pattern.substr(open + 2, close - open - 2);
        code_.append(pattern.substr(0, open)).append(valueOf(name, values));
        pattern.remove_prefix(close + 2);
    }
    code_.append(pattern).append("\n");
}

std::string_view CodeWriter::valueOf(std::string_view name, Values values) const {
    if (name == "module")
        return module_;
    const auto found = std::ranges::find(values, name, &Values::value_type::first);
    if (found == values.end())
        Runtime::fatalError({"No value for {{", name, "}} in a template for generated code."}, "CodeWriter", __LINE__);
    return found->second;
}

void CodeWriter::addList(std::string_view head, const std::vector<std::string>& items, std::string_view tail) {
    const std::size_t indent = columnsOf(head.substr(head.rfind('\n') + 1)); // npos + 1 is 0
    code_ += head;
    std::size_t column = indent;
    for (const std::string& item : items) {
        const bool isFirst = &item == &items.front(), isLast = &item == &items.back();
        const std::string piece = item + (isLast ? std::string(tail) : ",");
        const std::size_t width = columnsOf(piece);
        if (isFirst) {
            column += width;
        } else if (column + 1 + width > maxWidth) {
            code_.append("\n").append(indent, ' ');
            column = indent + width;
        } else {
            code_ += ' ';
            column += 1 + width;
        }
        code_ += piece;
    }
    code_ += '\n';
}

void CodeWriter::addAssignment(std::string_view head, std::string_view value) {
    const bool fits = columnsOf(head) + 3 + columnsOf(value) <= maxWidth;
    code_.append(head).append(fits ? " = " : " =\n    ").append(value).append("\n");
}

void CodeWriter::addComment(std::string_view text) {
    constexpr std::string_view first = "// ", next = "//    ";
    std::string line(first);
    std::size_t column = first.size();
    const auto end = [&] {
        // A backslash would continue the comment on the next line; some compilers also treat "??/" as one.
        const bool isContinued = line.ends_with('\\') || line.ends_with("?\?/");
        code_.append(line).append(isContinued ? ".\n" : "\n");
    };
    for (bool beginsLine = true; !text.empty(); beginsLine = false) {
        const std::string_view word = text.substr(0, text.find(' '));
        const std::size_t width = columnsOf(word);
        if (!beginsLine && column + 1 + width > maxWidth) {
            end();
            line = next;
            column = next.size();
            beginsLine = true;
        }
        line.append(beginsLine ? "" : " ").append(word);
        column += width + (beginsLine ? 0 : 1);
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    end();
}

void CodeWriter::addIncludes(std::vector<std::string> headers) {
    std::ranges::sort(headers);
    for (const std::string& header : headers)
        code_.append("#include \"").append(header).append("\"\n");
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

std::string filled(std::string_view pattern, std::string_view module) {
    CodeWriter code(module);
    code.add(pattern);
    return code.take();
}

} // namespace Generator
