// Lumora/internal/Language.h
// The choices behind Localization; internal.
// Threads: any.
#pragma once

#include "Foundation/Locale.h"
#include "Lumora/LocalizationCode.h"
#include "Runtime/Export.h"
#include <span>
#include <string>

namespace Lumora::detail {

// The language in force: among `supported`, by the first of `preferred` only.
[[nodiscard]] LUMORA_EXPORT Corvane::LocalizationCode
pickLocalizationCode(std::span<const std::string> preferred,
                     std::span<const Corvane::LocalizationCode> supported) noexcept;
// The language in force and its locale. Throw when memory or descriptors run out.
[[nodiscard]] Corvane::LocalizationCode languageInForce();
[[nodiscard]] Foundation::Locale localeInForce();

} // namespace Lumora::detail
