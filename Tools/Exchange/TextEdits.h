// Exchange/TextEdits.h
// Collects replacements in a text in any order and applies them at once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Exchange {

class TextEdits {
public:
    // Replaces [begin, end) of the text. Ranges must not overlap; several insertions at one offset keep their order.
    void replace(std::size_t begin, std::size_t end, std::string with) {
        edits_.push_back({begin, end, std::move(with)});
    }
    void insert(std::size_t at, std::string what) { replace(at, at, std::move(what)); }

    std::string applied(std::string_view text) const {
        std::vector<Edit> ordered = edits_;
        std::ranges::stable_sort(ordered, {}, [](const Edit& edit) { return std::pair(edit.begin, edit.end); });
        std::string out;
        std::size_t at = 0;
        for (const Edit& edit : ordered) {
            out.append(text.substr(at, edit.begin - at)).append(edit.with);
            at = edit.end;
        }
        return out.append(text.substr(at));
    }

private:
    struct Edit {
        std::size_t begin, end;
        std::string with;
    };
    std::vector<Edit> edits_;
};

} // namespace Exchange
