#include "Program/Suggestion.h"

#include "Generator/CodeText.h"
#include <algorithm>
#include <cctype>
#include <vector>

namespace Tools {

namespace {

constexpr std::size_t maxComparedBytes = 100;
constexpr unsigned costOfEdit = 2; // a byte is inserted, deleted or replaced, or two neighbours are swapped
constexpr unsigned costOfCase = 1; // a letter is replaced by the same one in the other case

unsigned substitutionCost(char one, char other) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    if (one == other)
        return 0;
    return lower(one) == lower(other) ? costOfCase : costOfEdit;
}

// The least cost of edits that make one word the other.
unsigned editCost(std::string_view one, std::string_view other) {
    std::vector<unsigned> row(other.size() + 1), last(row), beforeLast(row);
    for (std::size_t j = 0; j < row.size(); ++j)
        row[j] = static_cast<unsigned>(j) * costOfEdit;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = last[0] + costOfEdit;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const unsigned substituted = last[j - 1] + substitutionCost(one[i - 1], other[j - 1]);
            row[j] = std::min({substituted, row[j - 1] + costOfEdit, last[j] + costOfEdit});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + costOfEdit);
        }
    }
    return row.back();
}

} // namespace

std::string suggestion(std::string_view word, std::span<const std::string> known) {
    if (word.size() > maxComparedBytes)
        return "";
    unsigned costLimit = static_cast<unsigned>(word.size()) * costOfEdit / 3;
    const std::string* best = nullptr;
    for (const std::string& name : known) {
        if (name.size() > maxComparedBytes)
            continue;
        const unsigned cost = editCost(word, name);
        if (cost < costLimit || (cost == costLimit && best == nullptr)) {
            costLimit = cost;
            best = &name;
        }
    }
    return best == nullptr ? "" : "; did you mean " + Generator::quote(*best) + "?";
}

} // namespace Tools
