#include "Foundation/Host.h"

#include "Foundation/Locale.h"
#include "Foundation/internal/HostState.h"
#include "Foundation/internal/SharedText.h"
#include "Runtime/internal/ForkLock.h"
#include "Runtime/internal/StartData.h"
#include <algorithm>
#include <cstdlib>
#include <initializer_list>

namespace Foundation {

namespace detail {

namespace {

constexpr std::string_view defaultLocale = "en_US"; // when the environment names none, or "C"
constexpr char separator = '\0';                    // between languages, as it cannot be part of a language tag

// The languages come last, because they are long and would move the others to another page.
LUMORA_START_DATA constinit Runtime::ForkLock changing; // guards writes; readers always see a consistent text
LUMORA_START_DATA constinit SharedText<Host::longestLocale> locale;
LUMORA_START_DATA constinit SharedText<Host::longestLanguages> languages; // most preferred first

// Held by setters. An interrupted write of a parent process needs no repair: readers still see the text before it.
class Change {
public:
    Change() noexcept { static_cast<void>(changing.lock()); }
    ~Change() { changing.unlock(); }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
};

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

std::string_view withoutSuffix(std::string_view name, char mark) {
    return name.substr(0, name.find(mark));
}

// Whether a locale name names no language.
bool isPlain(std::string_view name) {
    const std::string_view language = withoutSuffix(name, '.');
    return language.empty() || language == "C" || language == "POSIX";
}

// The settings in the environment.
struct Settings {
    std::string languages;
    std::string locale;
};

void addLanguage(std::string& list, std::string_view tag) {
    const std::size_t needed = tag.size() + (list.empty() ? 0 : 1);
    if (tag.empty() || tag.find(separator) != tag.npos || list.size() + needed > Host::longestLanguages)
        return;
    if (!list.empty())
        list += separator;
    list += tag;
}

std::vector<std::string> splitLanguages(std::string_view list) {
    std::vector<std::string> tags;
    while (!list.empty()) {
        tags.emplace_back(withoutSuffix(list, separator));
        list.remove_prefix(std::min(tags.back().size() + 1, list.size()));
    }
    return tags;
}

// `messages`: the locale of messages, empty if there is none.
std::string environmentLanguages(std::string_view messages) {
    std::string list;
    // As in gettext, the locale "C" overrides LANGUAGE. Unlike there, a missing locale does not.
    std::string_view wanted = messages.empty() || !isPlain(messages) ? environment("LANGUAGE") : std::string_view();
    while (!wanted.empty()) {
        const std::string_view one = withoutSuffix(wanted, ':');
        wanted.remove_prefix(std::min(one.size() + 1, wanted.size()));
        addLanguage(list, languageTag(one));
    }
    addLanguage(list, isPlain(messages) ? "en" : languageTag(messages));
    return list;
}

// The identifier, or an empty one if it is too long.
std::string_view accepted(std::string_view identifier) noexcept {
    return identifier.size() <= Host::longestLocale ? identifier : std::string_view();
}

std::string_view firstNonEmpty(std::initializer_list<std::string_view> values) noexcept {
    for (const std::string_view value : values)
        if (!value.empty())
            return value;
    return {};
}

Settings environmentSettings() {
    const std::string_view all = environment("LC_ALL"), messages = environment("LC_MESSAGES"),
                           rest = environment("LANG");
    // LC_MESSAGES comes last, because it is meant for texts and this locale for numbers.
    const std::string_view identifier = firstNonEmpty({all, isPlain(rest) ? messages : rest});
    return {.languages = environmentLanguages(firstNonEmpty({all, messages, rest})),
            .locale = std::string(isPlain(identifier) ? defaultLocale
                                                      : accepted(withoutSuffix(withoutSuffix(identifier, '@'), '.')))};
}

// Takes from the environment what was not set.
[[gnu::cold]] void initialize() {
    const Settings settings = environmentSettings();
    const Change change;
    if (languages.version() == 0)
        languages.write(settings.languages);
    if (locale.version() == 0)
        locale.write(settings.locale);
}

} // namespace

std::uint64_t hostLanguagesVersion() {
    const std::uint64_t version = languages.version();
    if (version != 0) [[likely]]
        return version;
    initialize();
    return languages.version();
}

HostLanguages hostLanguages() {
    static_cast<void>(hostLanguagesVersion()); // reads the environment if needed
    return languages.read([](std::uint64_t version, std::string_view list) {
        return HostLanguages{version, splitLanguages(list)};
    });
}

std::string languageTag(std::string_view localeName) {
    const std::size_t at = localeName.find('@');
    const std::string_view modifier = at == std::string_view::npos ? std::string_view() : localeName.substr(at + 1);
    std::string tag(withoutSuffix(withoutSuffix(localeName, '@'), '.'));
    std::ranges::replace(tag, '_', '-');
    std::string_view script;
    if (modifier == "latin")
        script = "-Latn";
    else if (modifier == "cyrillic")
        script = "-Cyrl";
    return tag.insert(std::min(tag.find('-'), tag.size()), script);
}

} // namespace detail

Locale Locale::current() {
    if (detail::locale.version() == 0) [[unlikely]]
        detail::initialize();
    return detail::locale.read([](std::uint64_t, std::string_view identifier) { return Locale(identifier); });
}

namespace Host {

void setPreferredLanguages(const std::vector<std::string>& languages) {
    std::string list;
    for (const std::string& name : languages)
        detail::addLanguage(list, detail::languageTag(name));
    const detail::Change change;
    detail::languages.write(list);
}

void setCurrentLocale(std::string_view identifier) {
    const detail::Change change;
    detail::locale.write(detail::accepted(identifier));
}

void reset() {
    const detail::Settings settings = detail::environmentSettings();
    const detail::Change change;
    detail::languages.write(settings.languages);
    detail::locale.write(settings.locale);
}

} // namespace Host

} // namespace Foundation
