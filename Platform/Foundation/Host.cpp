#include "Foundation/Host.h"

#include "Foundation/internal/HostState.h"
#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <mutex>

namespace Foundation {

namespace detail {

namespace {

constexpr std::string_view plainLocale = "en_US"; // of a host that says nothing, or "C"

struct Node {
    HostState state;
    Node* next;
};

constinit std::atomic<const HostState*> inForce{nullptr};
constinit std::mutex changing; // of the two below, and of `inForce`
constinit Node* seen = nullptr;

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

std::string_view withoutSuffix(std::string_view name, char mark) {
    return name.substr(0, name.find(mark));
}

bool isPlain(std::string_view name) {
    const std::string_view language = withoutSuffix(name, '.');
    return language.empty() || language == "C" || language == "POSIX";
}

HostState environmentState() {
    const std::string_view all = environment("LC_ALL"), messages = environment("LC_MESSAGES"),
                           rest = environment("LANG");
    const std::string_view language = !all.empty() ? all : !messages.empty() ? messages : rest;
    const std::string_view locale = !all.empty() ? all : !isPlain(rest) ? rest : messages;
    std::vector<std::string> languages;
    // A user who asks for the plain locale gets the plain language whatever LANGUAGE says.
    std::string_view wanted = language.empty() || !isPlain(language) ? environment("LANGUAGE") : std::string_view();
    while (!wanted.empty()) {
        const std::string_view one = withoutSuffix(wanted, ':');
        wanted.remove_prefix(std::min(one.size() + 1, wanted.size()));
        if (!one.empty())
            languages.push_back(languageTag(one));
    }
    if (const std::string own = isPlain(language) ? "en" : languageTag(language);
        std::ranges::find(languages, own) == languages.end())
        languages.push_back(own);
    const auto identifier = isPlain(locale) ? plainLocale : withoutSuffix(withoutSuffix(locale, '@'), '.');
    return {.languages = std::move(languages), .locale = Locale(std::string(identifier))};
}

// Call with `changing` held.
const HostState& enforce(HostState state) {
    Node* node = seen;
    while (node != nullptr && node->state != state)
        node = node->next;
    if (node == nullptr)
        node = seen = new Node{std::move(state), seen};
    inForce.store(&node->state, std::memory_order_release);
    return node->state;
}

// Call with `changing` held.
const HostState& inForceOrFirst() {
    const HostState* state = inForce.load(std::memory_order_acquire);
    return state != nullptr ? *state : enforce(environmentState());
}

} // namespace

const HostState& hostState() {
    if (const HostState* state = inForce.load(std::memory_order_acquire)) [[likely]]
        return *state;
    const std::lock_guard lock(changing);
    return inForceOrFirst();
}

std::string languageTag(std::string_view hostName) {
    const std::string_view name = withoutSuffix(withoutSuffix(hostName, '@'), '.');
    const std::size_t at = hostName.find('@');
    const std::string_view modifier = at == std::string_view::npos ? std::string_view() : hostName.substr(at + 1);
    std::string tag(name);
    std::ranges::replace(tag, '_', '-');
    const std::string_view script = modifier == "latin" ? "-Latn" : modifier == "cyrillic" ? "-Cyrl" : "";
    return tag.insert(std::min(tag.find('-'), tag.size()), script);
}

} // namespace detail

const Locale& Locale::current() {
    return detail::hostState().locale;
}

namespace Host {

void setPreferredLanguages(std::vector<std::string> languages) {
    std::ranges::transform(languages, languages.begin(),
                           [](const std::string& name) { return detail::languageTag(name); });
    const std::lock_guard lock(detail::changing);
    detail::enforce({.languages = std::move(languages), .locale = detail::inForceOrFirst().locale});
}

void setCurrentLocale(std::string_view identifier) {
    const std::lock_guard lock(detail::changing);
    detail::enforce({.languages = detail::inForceOrFirst().languages, .locale = Locale(std::string(identifier))});
}

void reset() {
    const std::lock_guard lock(detail::changing);
    detail::enforce(detail::environmentState());
}

} // namespace Host

} // namespace Foundation
