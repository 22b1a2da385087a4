#include "Lumora/LocalizationCode.h"

#include <algorithm>
#include <array>
#include <utility> // std::index_sequence

namespace Corvane {

namespace {

// In the order of LocalizationCode::Case.
constexpr std::array<std::string_view, 19> rawValues = {"ar", "de", "en", "es", "es-419", "fr",    "id",
                                                        "it", "ja", "ko", "nl", "pl",     "pt-BR", "pt-PT",
                                                        "ru", "th", "tr", "vi", "zh-Hans"};

template <std::size_t... position> constexpr auto casesAt(std::index_sequence<position...>) {
    return std::array{LocalizationCode(static_cast<LocalizationCode::Case>(position))...};
}
constexpr auto cases = casesAt(std::make_index_sequence<rawValues.size()>());

} // namespace

std::span<const LocalizationCode> LocalizationCode::allCases() noexcept {
    return cases;
}

std::optional<LocalizationCode> LocalizationCode::fromRawValue(std::string_view text) noexcept {
    const auto found = std::ranges::find(rawValues, text);
    if (found == rawValues.end())
        return std::nullopt;
    return cases[static_cast<std::size_t>(found - rawValues.begin())];
}

std::string LocalizationCode::rawValue() const {
    return std::string(rawValues[case_]);
}

std::string LocalizationCode::shortId() const {
    const std::string_view raw = rawValues[case_];
    return std::string(raw.substr(0, raw.find('-')));
}

} // namespace Corvane
