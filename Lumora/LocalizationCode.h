// Lumora/LocalizationCode.h
// The languages that the application supports. In the application the type belongs to the library Corvane, so the
// application's code expects it in this namespace.
// Text: ASCII. Threads: any; no state that changes.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Corvane {

class LUMORA_EXPORT LocalizationCode {
public:
    // `id_` is Indonesian, "id": the function id() takes the name without underscore.
    enum Case : std::uint8_t { ar, de, en, es, es419, fr, id_, it, ja, ko, nl, pl, ptBR, ptPT, ru, th, tr, vi, zhHans };

    constexpr LocalizationCode(Case code) noexcept : case_(code) {}

    // Every case, in declaration order.
    [[nodiscard]] static std::span<const LocalizationCode> allCases() noexcept;
    // The case whose raw value is `text` (exact), or no value.
    [[nodiscard]] static std::optional<LocalizationCode> fromRawValue(std::string_view text) noexcept;

    // The BCP 47 tag: "es-419".
    [[nodiscard]] std::string rawValue() const;
    // The raw value, which identifies the case.
    [[nodiscard]] std::string id() const { return rawValue(); }
    // The language without region or script: "es" for both "es" and "es-419".
    [[nodiscard]] std::string shortId() const;

    friend constexpr bool operator==(LocalizationCode, LocalizationCode) noexcept = default;
    // The raw value, for placeholders of texts (Foundation/Describable.h).
    friend std::string describe(LocalizationCode code) { return code.rawValue(); }

private:
    Case case_;
};

} // namespace Corvane
