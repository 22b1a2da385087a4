// Lumora/internal/Language.h
// How Localization selects language and locale; internal.
// Threads: any.
#pragma once

#include "Foundation/Locale.h"
#include "Lumora/LocalizationCode.h"
#include <algorithm>
#include <optional>
#include <span>
#include <string>

namespace Lumora::detail {

// The first of `preferred` if it is one of `supported`, else English. Later preferences are ignored.
[[nodiscard]] inline Corvane::LocalizationCode
pickLocalizationCode(std::span<const std::string> preferred,
                     std::span<const Corvane::LocalizationCode> supported) noexcept {
    using Corvane::LocalizationCode;
    const auto code = preferred.empty() ? std::nullopt : LocalizationCode::fromRawValue(preferred.front());
    const bool isSupported = code && std::ranges::find(supported, *code) != supported.end();
    return isSupported ? *code : LocalizationCode::en;
}

// As in Localization, but they throw std::bad_alloc or std::system_error when memory or descriptors run out.
[[nodiscard]] Corvane::LocalizationCode currentCode();
[[nodiscard]] Foundation::Locale currentLocale();

} // namespace Lumora::detail
