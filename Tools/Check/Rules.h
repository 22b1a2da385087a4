// Check/Rules.h
// The rules of `lumora check`. Docs/check.md describes each rule with examples.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Check {

using SourceBundle::Severity;

// In report order: errors, warnings, notes.
enum class Rule : std::uint8_t {
    unreadableTable,
    placeholderMismatch,
    changedPlaceholder,
    missingPluralForm,
    assetMissingFile,
    unreadableAsset,
    missingKey,
    unknownKey,
    duplicateKey,
    lonePercent,
    spaceMismatch,
    newlineMismatch,
    nameClash,
    unnamedKey,
    assetUnassigned,
    assetDuplicateVariant,
    assetMissingScale,
    assetMissingDark,
    unusedAccessor,
    untranslated,
    punctuationMismatch,
    doubleSpace,
    repeatedWord,
    inconsistentTranslation,
    coverage
};
inline constexpr std::size_t ruleCount = static_cast<std::size_t>(Rule::coverage) + 1;

struct RuleInfo {
    Rule rule;
    std::string_view name; // "missing-key"
    Severity severity;
    std::string_view summary; // what is wrong, as a phrase
    std::string_view help;    // what to do, as a sentence
};

// In the order of the enumeration.
[[nodiscard]] std::span<const RuleInfo, ruleCount> allRules() noexcept;
[[nodiscard]] const RuleInfo& infoOf(Rule rule) noexcept;
[[nodiscard]] std::optional<Rule> ruleNamed(std::string_view name) noexcept;

} // namespace Check
