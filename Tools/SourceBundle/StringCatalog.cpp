#include "SourceBundle/StringCatalog.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/MessageText.h"
#include "SourceBundle/PluralText.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/PluralKeys.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <simdjson.h>
#include <tuple>
#include <utility>
#include <vector>

namespace SourceBundle {

namespace ondemand = simdjson::ondemand;
using Intl::pluralCategoryNamed;

namespace {

namespace layout = StringTables::bundleLayout;

std::string noLanguage(std::string_view name) {
    return quotedName(name) + " is not the name of a language";
}

// Counts lines and columns. Offsets must not decrease between calls.
class Lines {
public:
    explicit Lines(std::string_view text) : text_(text) {}

    std::pair<std::uint32_t, std::uint32_t> locate(std::size_t offset) {
        for (; at_ < offset; ++at_) {
            if (text_[at_] == '\n') {
                ++line_;
                column_ = 1;
            } else if (StringTables::internal::beginsCharacter(text_[at_])) {
                ++column_;
            }
        }
        return {line_, column_};
    }

private:
    std::string_view text_;
    std::size_t at_ = 0;
    std::uint32_t line_ = 1, column_ = 1;
};

// A localization: a text, plural forms, or a text with variables.
struct Localized {
    std::optional<std::string> text;
    PluralForms forms;
    std::vector<Substitution> substitutions;
    State state = State::translated;
    bool hasTooManySubstitutions = false; // the rest is ignored
    bool isForDevice = false;             // the text and the forms, which take precedence over those for any device
    bool hasDevices = false;              // texts for other devices were ignored
    std::string unknown;                  // the name of an ignored member that may contain texts, or empty

    bool hasForms() const {
        return std::ranges::any_of(forms, [](const auto& form) { return form.has_value(); });
    }
    bool isEmpty() const { return !text && !hasForms(); }
    void add(Substitution&& substitution) {
        if (substitutions.size() < StringTables::PluralTable::maxVariables)
            substitutions.push_back(std::move(substitution));
        else
            hasTooManySubstitutions = true;
    }
    // Uses the text for one kind of device.
    void take(Localized&& device) {
        isForDevice = true;
        text = std::move(device.text);
        forms = std::move(device.forms);
        for (Substitution& substitution : device.substitutions)
            add(std::move(substitution));
        note(device.state);
    }
    // Remembers what was ignored in `part`.
    void noteIgnored(const Localized& part) {
        hasTooManySubstitutions |= part.hasTooManySubstitutions;
        hasDevices |= part.hasDevices;
        if (unknown.empty())
            unknown = part.unknown;
    }
    // Keeps the state that is furthest from translated.
    void note(State other) {
        if (state == State::translated || other == State::isNew)
            state = other;
    }
};

// Bounds the recursion of the functions below.
void checkDepth(ondemand::value& value) {
    constexpr std::int32_t maxDepth = 64;
    if (value.current_depth() > maxDepth)
        throw simdjson::simdjson_error(simdjson::DEPTH_ERROR);
}

// Parses and ignores a value, so that errors in it are found.
void skip(ondemand::value value) {
    checkDepth(value);
    switch (value.type()) {
    case ondemand::json_type::array:
        for (auto element : value.get_array())
            skip(element.value());
        break;
    case ondemand::json_type::object:
        for (auto field : value.get_object())
            skip(field.value());
        break;
    case ondemand::json_type::string:
        (void)value.get_string().value();
        break;
    case ondemand::json_type::number:
        (void)value.get_number().value();
        break;
    case ondemand::json_type::boolean:
        (void)value.get_bool().value();
        break;
    case ondemand::json_type::null:
        if (!value.is_null())
            throw simdjson::simdjson_error(simdjson::N_ATOM_ERROR);
        break;
    }
}

// Calls `visit(name, value)` for each member; `visit` must consume the value.
template <class Visit> void forEach(ondemand::value object, Visit&& visit) {
    checkDepth(object);
    for (auto field : object.get_object()) {
        const std::string_view name = field.unescaped_key();
        visit(name, ondemand::value(field.value()));
    }
}

State stateNamed(std::string_view name) {
    if (name == "new")
        return State::isNew;
    return name == "needs_review" ? State::needsReview : State::translated;
}

struct Unit {
    std::optional<std::string> text; // no value if it is not translated yet
    State state = State::translated;
};

Unit readUnit(ondemand::value object) {
    Unit unit;
    forEach(object, [&](std::string_view name, ondemand::value value) {
        if (name == "state")
            unit.state = stateNamed(value.get_string());
        else if (name == "value")
            unit.text = std::string(std::string_view(value.get_string()));
        else
            skip(value);
    });
    if (unit.state == State::isNew && unit.text && unit.text->empty())
        unit.text.reset();
    return unit;
}

void readLocalized(ondemand::value object, Localized& out);

void readPlural(ondemand::value object, Localized& out) {
    forEach(object, [&](std::string_view name, ondemand::value value) {
        const auto category = pluralCategoryNamed(name);
        if (!category)
            return skip(value);
        Localized form;
        readLocalized(value, form);
        out.noteIgnored(form);
        if (out.isForDevice)
            return;
        out.forms[indexOf(*category)] = std::move(form.text);
        out.note(form.state);
    });
}

void readDevices(ondemand::value object, Localized& out) {
    using StringTables::pluralKeys::deviceRank;
    using StringTables::pluralKeys::lastDeviceRank;
    std::size_t best = lastDeviceRank + 1;
    Localized chosen;
    forEach(object, [&](std::string_view name, ondemand::value value) {
        Localized device;
        readLocalized(value, device);
        out.noteIgnored(device);
        if (device.isEmpty())
            return;
        const std::size_t rank = deviceRank(name);
        const bool isFirst = best > lastDeviceRank;
        out.hasDevices |= !isFirst;
        if (rank < best) {
            best = rank;
            chosen = std::move(device);
        }
    });
    if (!chosen.isEmpty())
        out.take(std::move(chosen));
}

void readVariations(ondemand::value object, Localized& out) {
    forEach(object, [&](std::string_view kind, ondemand::value variation) {
        if (kind == "plural") {
            readPlural(variation, out);
        } else if (kind == "device") {
            readDevices(variation, out);
        } else {
            out.unknown = kind;
            skip(variation);
        }
    });
}

void readSubstitutions(ondemand::value object, Localized& out) {
    forEach(object, [&](std::string_view name, ondemand::value value) {
        Substitution substitution{{std::string(name), "", {}}, 0};
        Localized forms;
        forEach(value, [&](std::string_view member, ondemand::value inner) {
            if (member == "argNum")
                substitution.argument =
                    std::min<std::uint64_t>(inner.get_uint64(), 9999); // the highest position of a placeholder
            else if (member == "formatSpecifier")
                substitution.variable.valueType = StringTables::withoutPercent(inner.get_string());
            else if (member == "variations")
                readVariations(inner, forms);
            else
                skip(inner);
        });
        if (substitution.variable.valueType.empty())
            substitution.variable.valueType = "lld";
        substitution.variable.forms = std::move(forms.forms);
        out.note(forms.state);
        out.noteIgnored(forms);
        out.add(std::move(substitution));
    });
}

void readLocalized(ondemand::value object, Localized& out) {
    forEach(object, [&](std::string_view name, ondemand::value value) {
        if (name == "stringUnit") {
            Unit unit = readUnit(value);
            if (out.isForDevice)
                return;
            out.text = std::move(unit.text);
            out.note(unit.state);
        } else if (name == "variations") {
            readVariations(value, out);
        } else if (name == "substitutions") {
            readSubstitutions(value, out);
        } else {
            out.unknown = name;
            skip(value);
        }
    });
}

class Reader {
public:
    Reader(const std::filesystem::path& file, std::string text, const std::function<void(CatalogText&&)>& add,
           Diagnostics& diagnostics)
        : file_(file), text_(std::move(text)), lines_(text_), add_(add), diagnostics_(diagnostics) {}

    Runtime::Result<std::string> read() {
        if (text_.starts_with("\xEF\xBB\xBF")) // byte order mark
            text_.erase(0, 3);
        // The parser needs padding after the text.
        const std::size_t size = text_.size();
        text_.resize(size + simdjson::SIMDJSON_PADDING);
        lines_ = Lines(text_);
        ondemand::parser parser;
        ondemand::document document;
        if (const auto wrong = parser.iterate(text_.data(), size, text_.size()).get(document))
            return error(wrong);
        try {
            return readCatalog(document);
        } catch (const simdjson::simdjson_error& wrong) {
            return errorAt(document, wrong.error());
        }
    }

private:
    Runtime::Error error(simdjson::error_code code) const {
        if (code == simdjson::NO_SUCH_FIELD)
            return {.message = R"(is not a string catalog: has no "sourceLanguage" or no "strings")", .file = file_};
        if (code == simdjson::INCORRECT_TYPE)
            return {.message = "is not a string catalog: unexpected type", .file = file_};
        if (code == simdjson::DEPTH_ERROR)
            return {.message = "has JSON that is nested too deeply", .file = file_};
        return {.message = std::string("invalid JSON: ") + simdjson::error_message(code), .file = file_};
    }

    Runtime::Error errorAt(ondemand::document& document, simdjson::error_code code) const {
        Runtime::Error found = error(code);
        const char* place = nullptr;
        if (document.current_location().get(place) == simdjson::SUCCESS)
            std::tie(found.line, found.column) = Lines(text_).locate(static_cast<std::size_t>(place - text_.data()));
        return found;
    }

    Runtime::Result<std::string> readCatalog(ondemand::document& document) {
        ondemand::object catalog = document.get_object();
        sourceLanguage_ = std::string(std::string_view(catalog.find_field_unordered("sourceLanguage").get_string()));
        if (!layout::canBeLanguage(sourceLanguage_))
            return Runtime::Error{.message = noLanguage(sourceLanguage_), .file = file_};
        ondemand::object strings = catalog.find_field_unordered("strings").get_object();
        for (auto field : strings) {
            const char* const quotationMark = field.key().value().raw() - 1;
            const auto [line, column] = lines_.locate(static_cast<std::size_t>(quotationMark - text_.data()));
            const std::string key(std::string_view(field.unescaped_key()));
            readKey(key, field.value(), line, column);
        }
        checkRest(document);
        return sourceLanguage_;
    }

    // Finds errors outside of "strings": the parser checks a value only when it is read.
    static void checkRest(ondemand::document& document) {
        document.rewind();
        for (auto field : document.get_object())
            if (field.unescaped_key().value() != "strings")
                skip(field.value());
        if (const char* place = nullptr; document.current_location().get(place) == simdjson::SUCCESS)
            throw simdjson::simdjson_error(simdjson::TRAILING_CONTENT);
    }

    void readKey(std::string_view key, ondemand::value object, std::uint32_t line, std::uint32_t column) {
        std::string comment;
        CatalogText common{
            .language = {}, .key = key, .text = {}, .plural = {}, .comment = {}, .line = line, .column = column};
        std::vector<std::pair<std::string, Localized>> localizations;
        forEach(object, [&](std::string_view name, ondemand::value value) {
            if (name == "comment")
                comment = std::string(std::string_view(value.get_string()));
            else if (name == "extractionState")
                common.isStale = std::string_view(value.get_string()) == "stale";
            else if (name == "shouldTranslate")
                common.isTranslatable = value.get_bool();
            else if (name == "localizations")
                forEach(value, [&](std::string_view language, ondemand::value localization) {
                    auto& [code, localized] = localizations.emplace_back(std::string(language), Localized());
                    readLocalized(localization, localized);
                    if (!layout::canBeLanguage(code)) {
                        diagnostics_.add(Severity::warning, {.message = noLanguage(code) + "; its text is left out",
                                                             .file = file_,
                                                             .line = line,
                                                             .column = column});
                        localizations.pop_back();
                    }
                });
            else
                skip(value);
        });
        common.comment = comment;
        reportIgnored(localizations, {.message = "", .file = file_, .line = line, .column = column});
        std::erase_if(localizations, [](const auto& each) { return each.second.isEmpty(); });
        const auto isSource = [&](const auto& each) { return each.first == sourceLanguage_; };
        if (std::ranges::none_of(localizations, isSource))
            localizations.emplace(localizations.begin(), sourceLanguage_, Localized())->second.text = std::string(key);
        for (auto& [language, localized] : localizations)
            add(common, language, std::move(localized));
    }

    // Reports once what was ignored in any language of a key.
    void reportIgnored(const std::vector<std::pair<std::string, Localized>>& localizations,
                       const Runtime::Error& place) {
        Localized all;
        for (const auto& [language, localized] : localizations)
            all.noteIgnored(localized);
        const auto report = [&](Severity severity, std::string message) {
            Runtime::Error what = place;
            what.message = std::move(message);
            diagnostics_.add(severity, std::move(what));
        };
        if (all.hasDevices)
            report(Severity::note, "texts for specific devices are left out");
        if (!all.unknown.empty())
            report(Severity::note, quotedName(all.unknown) + " is not supported and is left out");
        if (all.hasTooManySubstitutions)
            report(Severity::warning, "a text has more than " +
                                          std::to_string(StringTables::PluralTable::maxVariables) +
                                          " substitutions; the rest is left out");
    }

    void add(CatalogText text, std::string_view language, Localized localized) {
        text.language = language;
        text.state = localized.state;
        if (!localized.substitutions.empty() && localized.text)
            text.plural = pluralOfSubstitutions(*localized.text, std::move(localized.substitutions));
        else if (localized.hasForms())
            text.plural = pluralOfForms(std::move(localized.forms));
        const std::string shown = text.plural ? otherText(*text.plural) : *std::move(localized.text);
        text.text = shown;
        add_(std::move(text));
    }

    const std::filesystem::path& file_;
    std::string text_;
    Lines lines_;
    const std::function<void(CatalogText&&)>& add_;
    Diagnostics& diagnostics_;
    std::string sourceLanguage_;
};

} // namespace

Runtime::Result<std::string> readStringCatalog(const std::filesystem::path& file,
                                               const std::function<void(CatalogText&&)>& add,
                                               Diagnostics& diagnostics) {
    auto text = Runtime::readFile(file, maxCatalogBytes);
    if (!text)
        return std::move(text.error());
    return parseStringCatalog(*std::move(text), file, add, diagnostics);
}

Runtime::Result<std::string> parseStringCatalog(std::string bytes, const std::filesystem::path& file,
                                                const std::function<void(CatalogText&&)>& add,
                                                Diagnostics& diagnostics) {
    return Reader(file, std::move(bytes), add, diagnostics).read();
}

} // namespace SourceBundle
