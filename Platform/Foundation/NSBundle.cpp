#include "Foundation/NSBundle.h"

#include "Foundation/internal/BundleFolders.h"
#include "Foundation/internal/BundleState.h"
#include "Foundation/internal/FormattedText.h"
#include "Foundation/internal/HostState.h"
#include "Foundation/internal/LanguageChoice.h"
#include "Foundation/internal/Localization.h"
#include "Runtime/internal/CodeLocation.h"
#include "Runtime/internal/Hash.h"
#include "Runtime/internal/KeyedStore.h"
#include "Runtime/internal/OpenFile.h"
#include "Runtime/internal/StartData.h"
#include "Runtime/internal/SystemError.h"
#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/BundleLayout.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <deque>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace Foundation {

namespace {

namespace layout = StringTables::bundleLayout;

template <class... Functions> struct Overloaded : Functions... { using Functions::operator()...; };
// Clang before version 17 needs the guide: it does not deduce the template arguments of aggregates.
template <class... Functions> Overloaded(Functions...) -> Overloaded<Functions...>;

// The language folders in which texts are looked up, in order; null after the last.
using Chain = std::array<detail::Localization*, layout::lookupOrder({}, {}).size() + 1>;

bool isEmptyOrFileName(std::string_view name) noexcept {
    return name.empty() || layout::isFileName(name);
}

bool isDirectory(const std::string& path) noexcept {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// "/lumora-1" for liblumora.so.1.0.0: the library's own folder, so that several versions can be installed together.
// Empty for a library without a version.
std::string versionedFolder(std::string_view library) {
    static constexpr std::string_view prefix = "lib", suffix = ".so.";
    const std::size_t end = library.find(suffix);
    if (!library.starts_with(prefix) || end == library.npos)
        return {};
    const std::string_view version = library.substr(end + suffix.size());
    return "/" + std::string(library.substr(prefix.size(), end - prefix.size())) + "-" +
           std::string(version.substr(0, version.find('.')));
}

} // namespace

struct NSBundle::Contents {
    explicit Contents(const std::string& bundlePath) : Contents(bundlePath, detail::bundleFolders(bundlePath)) {}

    Contents(std::string bundlePath, const detail::BundleFolders& found)
        : bundle(*this), path(std::move(bundlePath)), developmentLocalization(found.developmentLanguage) {
        localizations.reserve(found.languages.size());
        for (const std::string& name : found.languages) {
            const std::string& language = name == layout::baseName ? developmentLocalization : name;
            folders.emplace_back(name, path, language);
            localizations.push_back(language);
        }
        std::ranges::sort(localizations);
        localizations.erase(std::unique(localizations.begin(), localizations.end()), localizations.end());
        chains.reserve(localizations.size() + 1);
        for (const std::string& language : localizations)
            chains.push_back(chainOf(language));
        chains.push_back(chainOf(developmentLocalization));
    }

    Chain chainOf(std::string_view chosen) {
        Chain chain{};
        auto end = chain.begin();
        for (const std::string_view language : layout::lookupOrder(chosen, developmentLocalization))
            if (const auto found = std::ranges::find(folders, language, &detail::Localization::name);
                found != folders.end() && std::find(chain.begin(), end, &*found) == end)
                *end++ = &*found;
        return chain;
    }

    // The index in `localizations` of the best match for `language` (BCP 47), or no value.
    std::optional<std::size_t> choose(std::string_view language) {
        const Choice* known = choices.find(language);
        if (known != nullptr)
            return *known;
        const Choice made = detail::chooseLanguage(language, localizations);
        choices.add(mostChoices, language, made);
        return made;
    }

    // The index of the user's first preferred localization; `localizations.size()` when the user reads none. The same
    // index selects the chain to search.
    std::size_t preferred() {
        const std::uint64_t known = latest.load(std::memory_order_relaxed);
        return known / versionUnit == detail::hostLanguagesVersion() ? known % versionUnit : choosePreferred();
    }
    [[gnu::noinline, gnu::cold]] std::size_t choosePreferred() {
        const detail::HostLanguages host = detail::hostLanguages();
        std::size_t index = localizations.size();
        for (const std::string& language : host.languages)
            if (const Choice chosen = choose(language)) {
                index = *chosen;
                break;
            }
        latest.store(host.version * versionUnit + index, std::memory_order_relaxed);
        return index;
    }

    // The table of `key` in `folder`, the first of the chain. It is nearly always in `recents`, where comparing names
    // is faster than a lookup in the folder.
    detail::LocalizedTable* firstTable(detail::Localization& folder, const LocalizedKey& key) {
        for (std::atomic<detail::LocalizedTable*>& recent : recents) {
            detail::LocalizedTable* const known = recent.load(std::memory_order_acquire);
            if (known == nullptr || &known->owner() != &folder) {
                detail::LocalizedTable* const table = folder.table(key.table, key.tableHash);
                recent.store(table, std::memory_order_release);
                return table;
            }
            if (known->name() == key.table) [[likely]]
                return known;
        }
        return folder.table(key.table, key.tableHash);
    }

    // Calls `use` with what was found: the LocalizedFormat of a plural, or a FoundText, which is none if no table has
    // the key.
    template <class Use> auto lookUp(const LocalizedKey& key, Use&& use) {
        const Chain& chain = chains[preferred()];
        for (auto at = chain.begin(); *at != nullptr; ++at) {
            detail::LocalizedTable* const table =
                at == chain.begin() ? firstTable(**at, key) : (*at)->table(key.table, key.tableHash);
            if (table == nullptr)
                continue;
            if (table->hasPlurals()) [[unlikely]]
                if (const auto plural = table->findPlural(key.key, (*at)->language()))
                    return use(*plural);
            if (const StringTables::FoundText text = table->findText(key.key, key.keyHash)) [[likely]]
                return use(text);
        }
        return use(StringTables::FoundText());
    }

    using Choice = std::optional<std::size_t>;

    NSBundle bundle;                    // used only in a path's first contents: a reload keeps the object
    Contents* previous = nullptr;       // contents that a reload replaced with these; kept reachable for leak checkers
    std::optional<std::uint64_t> state; // bundleState() before a reload read the files; none in the first contents
    std::string path;
    std::string developmentLocalization;
    std::deque<detail::Localization> folders;
    std::vector<std::string> localizations;
    std::vector<Chain> chains; // by localization, then one for users who read none of them

    // The first tables of the chain's first folder that were used since the user's language changed.
    std::array<std::atomic<detail::LocalizedTable*>, 8> recents{};
    Runtime::KeyedStore<Choice, 16> choices; // by the user's language, for at most mostChoices of them
    static constexpr std::size_t mostChoices = 256;
    // The version of the host's languages times versionUnit, plus preferred() for that version.
    std::atomic<std::uint64_t> latest{0};
    static constexpr std::uint64_t versionUnit = std::uint64_t{1} << 16; // more than any bundle has languages
};

LocalizedKey LocalizedKey::of(std::string_view table, std::string_view key) noexcept {
    const std::string_view name = table.empty() ? layout::defaultTable : table;
    return {name, key, Runtime::keyHash(name), Runtime::keyHash(key)};
}

const NSBundle& NSBundle::bundleWithPath(const std::string& path) {
    LUMORA_START_DATA static constinit Runtime::KeyedStore<Contents, 16> opened;
    const Contents* const known = opened.find(path);
    return (known != nullptr ? known : opened.add(opened.unlimited, path, path))->bundle;
}

const NSBundle& NSBundle::bundleForCode(const void* code, std::string_view name) {
    const Runtime::CodeLocation location = Runtime::codeLocation(code);
    if (location.isMainProgram)
        return mainBundle();
    const std::string bundle = "/" + std::string(name) + ".bundle";
    const std::string versioned = location.directory + versionedFolder(location.name) + bundle;
    return bundleWithPath(isDirectory(versioned) ? versioned : location.directory + bundle);
}

const NSBundle& NSBundle::mainBundle() {
    const Runtime::CodeLocation program = Runtime::mainProgramLocation();
    return bundleWithPath(program.directory + "/" + program.name + ".bundle");
}

const std::string& NSBundle::bundlePath() const noexcept {
    return contents().path;
}

const std::string& NSBundle::developmentLocalization() const noexcept {
    return contents().developmentLocalization;
}

const std::vector<std::string>& NSBundle::localizations() const noexcept {
    return contents().localizations;
}

std::vector<std::string> NSBundle::preferredLocalizations() const {
    Contents& contents = this->contents();
    std::vector<std::string> preferred;
    for (const std::string& language : detail::hostLanguages().languages)
        if (const auto chosen = contents.choose(language)) {
            const std::string& localization = contents.localizations[*chosen];
            if (std::ranges::find(preferred, localization) == preferred.end())
                preferred.push_back(localization);
        }
    if (preferred.empty() && !contents.localizations.empty())
        preferred.push_back(contents.developmentLocalization);
    return preferred;
}

const std::string* NSBundle::preferredLocalization() const {
    Contents& contents = this->contents();
    if (contents.localizations.empty())
        return nullptr;
    const std::size_t index = contents.preferred();
    return index < contents.localizations.size() ? &contents.localizations[index] : &contents.developmentLocalization;
}

std::optional<LocalizedFormat> NSBundle::findLocalized(const LocalizedKey& key) const {
    using Found = std::optional<LocalizedFormat>;
    return contents().lookUp(key, Overloaded{[](const LocalizedFormat& plural) { return Found(plural); },
                                             [](StringTables::FoundText found) {
                                                 return found ? Found(LocalizedFormat(found.text(), found.percents()))
                                                              : Found();
                                             }});
}

std::optional<LocalizedFormat> NSBundle::findLocalized(std::string_view key, std::string_view table) const {
    return findLocalized(LocalizedKey::of(table, key));
}

// Flattened: inlining all calls makes formatting faster.
[[gnu::flatten]] std::string NSBundle::formattedText(const LocalizedKey& key,
                                                     std::span<const FormatArgument> arguments) const {
    return contents().lookUp(
        key, Overloaded{[&](const LocalizedFormat& plural) { return String::format(plural, arguments); },
                        [&](StringTables::FoundText found) {
                            return detail::formattedText(found ? found.text() : key.key, found.percents(), nullptr,
                                                         arguments);
                        }});
}

LocalizedFormat NSBundle::localizedFormat(std::string_view key, std::string_view table) const {
    return findLocalized(key, table).value_or(LocalizedFormat(key));
}

std::string_view NSBundle::localizedText(std::string_view key, std::string_view table) const {
    return localizedFormat(key, table).text();
}

std::string NSBundle::localizedStringForKey(std::string_view key, std::string_view value,
                                            std::string_view table) const {
    if (const auto found = findLocalized(key, table))
        return std::string(found->text());
    return std::string(value.empty() ? key : value);
}

std::string NSBundle::localizedStringForKey(std::string_view key, const std::string* value,
                                            std::string_view table) const {
    return localizedStringForKey(key, value != nullptr ? *value : std::string_view(), table);
}

std::optional<std::string> NSBundle::tableDamage(std::string_view table) const {
    const std::string_view name = table.empty() ? layout::defaultTable : table;
    Contents& contents = this->contents();
    const Chain& chain = contents.chains[contents.preferred()];
    for (auto at = chain.begin(); *at != nullptr; ++at)
        if (auto damage = (*at)->damage(name))
            return damage;
    // With the dot, also fails for a file and for a folder that may not be searched.
    if (::access((contents.path + "/.").c_str(), F_OK) != 0)
        return Runtime::systemError(contents.path, "cannot be read").text();
    return std::nullopt;
}

std::optional<std::string> NSBundle::pathForResource(std::string_view name, std::string_view type,
                                                     std::string_view directory, std::string_view localization) const {
    std::string file(name);
    if (!type.empty())
        file.append(".").append(type);
    if (!layout::isFileName(file) || !isEmptyOrFileName(directory) || !layout::isFileName(localization))
        return std::nullopt;
    std::string path = bundlePath() + "/" + layout::folderOfLanguage(localization) + "/";
    if (!directory.empty())
        path.append(directory).append("/");
    path += file;
    if (const auto exists = Runtime::OpenFile::exists(path, bundlePath()); !exists) {
        Runtime::throwIfTransient(exists.error());
        return std::nullopt;
    }
    return path;
}

void NSBundle::reload() const {
    const auto state = detail::bundleState(bundlePath());
    if (state && state == contents().state)
        return;
    auto fresh = std::make_unique<Contents>(bundlePath());
    fresh->state = state;
    fresh->previous = contents_.load(std::memory_order_relaxed);
    while (!contents_.compare_exchange_weak(fresh->previous, fresh.get(), std::memory_order_acq_rel))
        continue;
    (void)fresh.release(); // never freed: callers may have views of any contents
}

} // namespace Foundation
