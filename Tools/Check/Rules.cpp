#include "Check/Rules.h"

#include <algorithm>
#include <array>

namespace Check {

namespace {

constexpr std::array<RuleInfo, ruleCount> rules = {{
    {Rule::unreadableTable, "unreadable-table", Severity::error, "a table cannot be read",
     "Correct the file at the place that the message names; until then the source cannot be compiled."},
    {Rule::placeholderMismatch, "placeholder-mismatch", Severity::error,
     "the placeholders are not those of the development text",
     "Give the text placeholders of the same kinds as the development text; number them (%1$@) where the order "
     "differs."},
    {Rule::changedPlaceholder, "changed-placeholder", Severity::error,
     "a development text takes other arguments than before",
     "Use a new key: callers and translations were written for the old arguments."},
    {Rule::missingPluralForm, "missing-plural-form", Severity::error, "a plural lacks a form that its language needs",
     "Add the missing plural forms."},
    {Rule::assetMissingFile, "asset-missing-file", Severity::error, "an asset refers to a missing file",
     "Add the file, or remove its entry from Contents.json."},
    {Rule::unreadableAsset, "unreadable-asset", Severity::error, "an asset cannot be read",
     "Replace the picture, or correct Contents.json."},
    {Rule::missingKey, "missing-key", Severity::warning, "a language has no text for a key",
     "Translate the text; until then users read the development text."},
    {Rule::unknownKey, "unknown-key", Severity::warning, "a language has a key that the development texts do not have",
     "Remove the key, correct its spelling, or add it to the development texts."},
    {Rule::duplicateKey, "duplicate-key", Severity::warning, "a key appears again in the same file",
     "Remove all but one of the entries; the last one is used."},
    {Rule::lonePercent, "lone-percent", Severity::warning, "a percent sign is not written as %%",
     "Write %% for a percent sign."},
    {Rule::spaceMismatch, "space-mismatch", Severity::warning,
     "the text begins or ends with a space and the development text does not, or vice versa",
     "Begin and end the text as the development text does."},
    {Rule::newlineMismatch, "newline-mismatch", Severity::warning,
     "the text has more or fewer line breaks than the development text",
     "Break the lines as the development text does."},
    {Rule::nameClash, "name-clash", Severity::warning, "two keys, assets or tables would have the same name in C++",
     "Rename one of them, or give the key another accessor in the names file."},
    {Rule::unnamedKey, "unnamed-key", Severity::warning, "a key, an asset or a table has no accessor",
     "Correct what the message says, or name the key's accessor in the names file."},
    {Rule::assetUnassigned, "asset-unassigned", Severity::warning, "a file of an asset is not assigned to a variant",
     "Assign the file to a variant, or remove it."},
    {Rule::assetDuplicateVariant, "asset-duplicate-variant", Severity::warning,
     "an asset has two entries for the same variant", "Remove one of the entries; the first one is used."},
    {Rule::assetMissingScale, "asset-missing-scale", Severity::warning, "an image lacks the bitmap for a scale",
     "Add the bitmap, or use a vector drawing."},
    {Rule::assetMissingDark, "asset-missing-dark", Severity::warning, "an asset has no variant for dark mode",
     "Add the variant for dark mode."},
    {Rule::unusedAccessor, "unused-accessor", Severity::warning, "an accessor is not used",
     "Remove the key or asset if nothing looks it up by name."},
    {Rule::untranslated, "untranslated", Severity::note, "the text equals the development text",
     "Translate the text, or allow the rule at the key if both languages use the same words."},
    {Rule::punctuationMismatch, "punctuation-mismatch", Severity::note,
     "the text does not end with the punctuation of the development text",
     "End the text as the development text does, with the mark of its language."},
    {Rule::doubleSpace, "double-space", Severity::note, "the text has two adjacent spaces",
     "Remove one of the spaces."},
    {Rule::repeatedWord, "repeated-word", Severity::note, "a word is repeated", "Remove one of the words."},
    {Rule::inconsistentTranslation, "inconsistent-translation", Severity::note,
     "the same development text has two translations in one language",
     "Use the same translation, unless the texts have different meanings."},
    {Rule::coverage, "coverage", Severity::note, "the share of texts that a language has",
     "Nothing to do; this is a statistic."},
}};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < ruleCount; ++i)
        if (static_cast<std::size_t>(rules[i].rule) != i || (i > 0 && rules[i].severity > rules[i - 1].severity))
            return false;
    return true;
}
static_assert(isInOrder());

} // namespace

std::span<const RuleInfo, ruleCount> allRules() noexcept {
    return rules;
}

const RuleInfo& infoOf(Rule rule) noexcept {
    return rules[static_cast<std::size_t>(rule)];
}

std::optional<Rule> ruleNamed(std::string_view name) noexcept {
    const auto found = std::ranges::find(rules, name, &RuleInfo::name);
    return found == rules.end() ? std::nullopt : std::optional(found->rule);
}

} // namespace Check
