// Reads PO files.
#include "Exchange/Languages.h"
#include "Exchange/PluralExpression.h"
#include "Exchange/Po.h"
#include "Exchange/PoSyntax.h"
#include "SourceBundle/LowerCase.h"
#include <algorithm>
#include <charconv>
#include <map>

namespace Exchange {

using SourceBundle::Severity;

namespace {

// The value of a header field, or an empty string.
std::string_view field(std::string_view header, std::string_view name) {
    while (!header.empty()) {
        const std::size_t size = std::min(header.find('\n'), header.size());
        const std::string_view line = header.substr(0, size);
        if (line.starts_with(name) && line.substr(name.size()).starts_with(':'))
            return trimmed(line.substr(name.size() + 1));
        header.remove_prefix(std::min(size + 1, header.size()));
    }
    return {};
}

// Whether the header field says UTF-8, or ASCII, which is a part of it.
bool isUtf8(std::string_view contentType) {
    constexpr std::string_view charset = "charset=";
    const std::size_t at = contentType.find(charset);
    const std::string_view charsetName = at == contentType.npos ? "" : trimmed(contentType.substr(at + charset.size()));
    const std::string name = SourceBundle::lowerCase(std::string(charsetName));
    return name == "utf-8" || name == "utf8" || name == "ascii" || name == "us-ascii";
}

struct PluralRule {
    std::size_t count = 0;
    std::string_view expression;
};

// Parses "nplurals=2; plural=(n != 1);".
std::optional<PluralRule> pluralRule(std::string_view forms) {
    constexpr std::string_view nplurals = "nplurals=", plural = "plural=";
    const std::size_t end = forms.find(';');
    std::string_view count = trimmed(forms.substr(0, end));
    if (end == forms.npos || !count.starts_with(nplurals))
        return std::nullopt;
    count = trimmed(count.substr(nplurals.size()));
    std::string_view expression = trimmed(forms.substr(end + 1));
    if (!expression.starts_with(plural))
        return std::nullopt;
    expression = expression.substr(plural.size());
    expression = trimmed(expression.substr(0, expression.find(';')));
    PluralRule rule{.expression = expression};
    constexpr std::size_t most = 100; // no language has more than six forms; this bounds the memory
    const auto read = std::from_chars(count.data(), count.data() + count.size(), rule.count);
    return read.ec == std::errc() && read.ptr == count.data() + count.size() && rule.count <= most ? std::optional(rule)
                                                                                                   : std::nullopt;
}

std::string formName(std::size_t form) {
    return "msgstr[" + std::to_string(form) + "]";
}

class Reader {
public:
    Reader(Translations& translations, SourceBundle::Diagnostics& faults)
        : translations_(translations), faults_(faults) {}

    Runtime::Result<void> readHeader(const PoText& entry) {
        const std::string_view header = entry.targets.front();
        if (!isUtf8(field(header, "Content-Type")))
            return error(entry, "the header field Content-Type must say charset=UTF-8");
        translations_.targetLanguage = field(header, "Language");
        translations_.sourceLanguage = field(header, "X-Source-Language");
        if (translations_.targetLanguage.empty())
            return error(entry, "the header has no field Language");
        if (const auto rule = pluralRule(field(header, "Plural-Forms")))
            categories_ = categoriesOfForms(rule->expression, rule->count, translations_.targetLanguage);
        return {};
    }

    void read(const PoText& entry) {
        const auto id = entry.context ? unitIdOf(*entry.context) : std::nullopt;
        if (!id)
            return fault(entry, entry.context ? "\"" + *entry.context + "\" is not the id of a text"
                                              : "the entry has no msgctxt with the id of its text");
        if (!entry.plural)
            return add(entry, *id, entry.source, entry.targets.front());
        if (!categories_)
            return fault(entry,
                         "the header (Plural-Forms) does not have the plural rule of " + translations_.targetLanguage);
        readForms(entry, *id);
    }

private:
    Runtime::Error error(const PoText& entry, std::string message) const {
        return {.message = std::move(message), .file = translations_.file, .line = entry.line};
    }
    void fault(const PoText& entry, std::string message) {
        faults_.add(Severity::error, error(entry, std::move(message)));
    }

    // Adds the text of each plural form. Several forms of the file's formula may be the same form of the language;
    // their texts must be equal, or empty. Otherwise nothing is added, because either text may be the right one.
    void readForms(const PoText& entry, UnitId id) {
        std::map<PluralCategory, std::size_t> forms; // the numbers of the forms to add
        for (std::size_t i = 0; i < entry.targets.size(); ++i) {
            const auto category = i < categories_->size() ? (*categories_)[i] : std::nullopt;
            const std::string& target = entry.targets[i];
            if (!category && !target.empty())
                fault(entry, translations_.targetLanguage + " has no plural form for " + formName(i));
            if (!category)
                continue;
            std::size_t& known = forms.try_emplace(*category, i).first->second;
            if (entry.targets[known].empty())
                known = i;
            else if (!target.empty() && target != entry.targets[known])
                return fault(entry, formName(known) + " and " + formName(i) +
                                        " are different texts for the same plural form \"" +
                                        std::string(Intl::pluralCategoryNames[indexOf(*category)]) + "\" of " +
                                        translations_.targetLanguage);
        }
        for (const auto& [category, form] : forms) {
            id.category = category;
            add(entry, id, category == PluralCategory::one ? entry.source : *entry.plural, entry.targets[form]);
        }
    }

    void add(const PoText& entry, const UnitId& id, const std::string& source, const std::string& target) {
        Unit unit{.id = id, .source = source, .sourceCategory = id.category, .target = target};
        if (entry.plural && id.category != PluralCategory::one)
            unit.sourceCategory = PluralCategory::other; // of msgid_plural
        unit.isFuzzy = entry.isFuzzy;
        unit.line = entry.line;
        translations_.units.push_back(std::move(unit));
    }

    Translations& translations_;
    SourceBundle::Diagnostics& faults_;
    std::optional<std::vector<std::optional<PluralCategory>>> categories_; // by form
};

bool isHeader(const PoText& entry) {
    return entry.source.empty() && !entry.context && !entry.plural;
}

} // namespace

Runtime::Result<Translations> readPo(const std::string& bytes, const std::string& file,
                                     SourceBundle::Diagnostics& faults) {
    auto texts = readPoTexts(bytes);
    if (!texts) {
        texts.error().file = file;
        return std::move(texts.error());
    }
    Translations translations{.file = file, .hasStates = false};
    const auto header = std::ranges::find_if(*texts, isHeader);
    if (header == texts->end())
        return Runtime::Error{.message = "not a PO file: it has no header", .file = file};
    Reader reader(translations, faults);
    if (auto read = reader.readHeader(*header); !read)
        return std::move(read.error());
    for (const PoText& text : *texts)
        if (!isHeader(text))
            reader.read(text);
    return translations;
}

} // namespace Exchange
