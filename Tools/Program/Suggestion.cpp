#include "Program/Suggestion.h"

#include "Generator/CodeText.h"
#include <algorithm>
#include <cctype>
#include <vector>

namespace Tools {

namespace {

constexpr std::size_t maxComparedBytes = 100;
constexpr unsigned costOfEdit = 2; // of a letter that is missing, superfluous or another
constexpr unsigned costOfCase = 1;

unsigned substitutionCost(char one, char other) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    if (one == other)
        return 0;
    return lower(one) == lower(other) ? costOfCase : costOfEdit;
}

// The least cost of edits that make `other` of `one` (Levenshtein), row by row.
unsigned editCost(std::string_view one, std::string_view other) {
    std::vector<unsigned> row(other.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<unsigned>(i) * costOfEdit;
    for (const char letter : one) {
        unsigned diagonal = row[0];
        row[0] += costOfEdit;
        for (std::size_t i = 0; i < other.size(); ++i) {
            const unsigned substituted = diagonal + substitutionCost(letter, other[i]);
            diagonal = row[i + 1];
            row[i + 1] = std::min({substituted, row[i] + costOfEdit, row[i + 1] + costOfEdit});
        }
    }
    return row.back();
}

} // namespace

std::string suggestion(std::string_view word, std::span<const std::string> known) {
    if (word.size() > maxComparedBytes)
        return "";
    unsigned least = static_cast<unsigned>(word.size()) * costOfEdit / 3;
    const std::string* best = nullptr;
    for (const std::string& name : known) {
        if (name.size() > maxComparedBytes)
            continue;
        const unsigned cost = editCost(word, name);
        if (cost < least || (cost == least && best == nullptr)) {
            least = cost;
            best = &name;
        }
    }
    return best == nullptr ? "" : "; did you mean " + Generator::quote(*best) + "?";
}

} // namespace Tools
