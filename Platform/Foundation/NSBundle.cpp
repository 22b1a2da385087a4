#include "Foundation/NSBundle.h"

#include "Foundation/internal/HostState.h"
#include "Foundation/internal/LanguageChoice.h"
#include "Foundation/internal/Localization.h"
#include "Runtime/internal/CodeLocation.h"
#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <dirent.h>
#include <filesystem>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace Foundation {

namespace {

constexpr std::string_view baseName = "Base";

// What a bundle answers to one state of the host.
struct Answers {
    const detail::HostState* host;
    std::vector<std::string> preferred;
    std::vector<detail::Localization*> chain; // where texts are looked for, in order
    Answers* next;
};

// Whether the open directory is the one that the path leads to.
bool isAt(DIR* directory, const std::string& path) noexcept {
    struct stat opened {
    }, there{};
    return ::fstat(::dirfd(directory), &opened) == 0 && ::stat(path.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

// The languages that have a folder below `path`, in no order; a directory that cannot be read has none. No value when
// another bundle took its place meanwhile: the folders of this one may have been removed while they were listed.
std::optional<std::vector<std::string>> listedLanguages(const std::string& path) {
    static constexpr std::string_view suffix = ".lproj";
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(path.c_str()), &::closedir);
    if (directory == nullptr) {
        Runtime::throwIfTransient({.cause = errno});
        return names;
    }
    // Its end and a failure look the same but for errno.
    errno = 0;
    while (const dirent* entry = ::readdir(directory.get())) {
        if (const std::string_view name = entry->d_name; name.ends_with(suffix) && name.size() > suffix.size())
            names.emplace_back(name.substr(0, name.size() - suffix.size()));
        errno = 0;
    }
    Runtime::throwIfTransient({.cause = errno});
    return isAt(directory.get(), path) ? std::optional(std::move(names)) : std::nullopt;
}

std::vector<std::string> languageFolders(const std::string& path) {
    for (int upgrades = 0; upgrades < 16; ++upgrades)
        if (auto names = listedLanguages(path)) {
            std::ranges::sort(*names);
            return *std::move(names);
        }
    throw std::system_error(EAGAIN, std::generic_category()); // for the moment; the next read tries again
}

std::string developmentRegion(const std::string& path) {
    const auto info = StringTables::Table::readFile(path + "/Info.plist");
    if (!info)
        Runtime::throwIfTransient(info.error());
    else if (const auto region = info->find("CFBundleDevelopmentRegion"))
        return std::string(*region);
    return "en";
}

bool leadsOut(std::string_view component) {
    return component.find('/') != std::string_view::npos || component == "..";
}

// "lumora-1" for the library liblumora.so.1.0.0: its folder beside it when several versions are installed together.
std::string versionedFolder(std::string_view library) {
    static constexpr std::string_view prefix = "lib", suffix = ".so.";
    const std::size_t end = library.find(suffix);
    if (!library.starts_with(prefix) || end == library.npos)
        return {};
    const std::string_view version = library.substr(end + suffix.size());
    return std::string(library.substr(prefix.size(), end - prefix.size())) + "-" +
           std::string(version.substr(0, version.find('.')));
}

} // namespace

struct NSBundle::Contents {
    explicit Contents(std::string bundlePath)
        : bundle(*this), path(std::move(bundlePath)), developmentLocalization(developmentRegion(path)) {
        for (const std::string& name : languageFolders(path))
            folders.emplace_back(name, path + "/" + name + ".lproj", name == baseName ? developmentLocalization : name);
        for (const Folder& folder : folders)
            localizations.push_back(folder.name == baseName ? developmentLocalization : folder.name);
        std::ranges::sort(localizations);
        localizations.erase(std::unique(localizations.begin(), localizations.end()), localizations.end());
    }

    detail::Localization* localization(std::string_view name) {
        const auto found = std::ranges::find(folders, name, &Folder::name);
        return found == folders.end() ? nullptr : &found->localization;
    }

    const Answers* answered(const detail::HostState& host) const noexcept {
        const Answers* answers = all.load(std::memory_order_acquire);
        while (answers != nullptr && answers->host != &host)
            answers = answers->next;
        return answers;
    }

    const Answers& answers() {
        const detail::HostState& host = detail::hostState();
        const Answers* recent = latest.load(std::memory_order_acquire);
        if (recent != nullptr && recent->host == &host) [[likely]]
            return *recent;
        const Answers* found = answered(host);
        if (found == nullptr)
            found = &answer(host);
        latest.store(found, std::memory_order_release);
        return *found;
    }

    const Answers& answer(const detail::HostState& host) {
        const std::lock_guard lock(answering);
        if (const Answers* found = answered(host))
            return *found;
        auto answers = std::make_unique<Answers>(
            Answers{&host, detail::chooseLanguages(host.languages, localizations), {}, all.load()});
        if (answers->preferred.empty() && !localizations.empty())
            answers->preferred.push_back(developmentLocalization);
        const std::string_view chosen = answers->preferred.empty() ? std::string_view() : answers->preferred.front();
        for (const std::string_view name : {chosen, baseName, std::string_view(developmentLocalization)})
            if (detail::Localization* one = localization(name);
                one != nullptr && std::ranges::find(answers->chain, one) == answers->chain.end())
                answers->chain.push_back(one);
        all.store(answers.get(), std::memory_order_release);
        return *answers.release();
    }

    struct Folder {
        Folder(std::string folderName, std::string directory, std::string_view language)
            : name(std::move(folderName)), localization(std::move(directory), language) {}
        std::string name;
        detail::Localization localization;
    };

    NSBundle bundle;
    const Contents* next = nullptr; // among the bundles that were opened
    std::string path;
    std::string developmentLocalization;
    std::list<Folder> folders;
    std::vector<std::string> localizations;

    std::atomic<const Answers*> latest{nullptr}; // of `all`, the one that was asked for last
    std::atomic<Answers*> all{nullptr};          // a list that only grows at its head
    std::mutex answering;
};

const NSBundle& NSBundle::bundleWithPath(const std::string& path) {
    static constinit std::mutex opening;
    static constinit const Contents* opened = nullptr;
    const std::lock_guard lock(opening);
    for (const Contents* one = opened; one != nullptr; one = one->next)
        if (one->path == path)
            return one->bundle;
    auto* contents = new Contents(path);
    contents->next = std::exchange(opened, contents);
    return contents->bundle;
}

const NSBundle& NSBundle::bundleForCode(const void* code, std::string_view name) {
    const Runtime::CodeLocation location = Runtime::codeLocation(code);
    if (location.isMainProgram)
        return mainBundle();
    const std::string bundle = "/" + std::string(name) + ".bundle";
    const std::string versioned = location.directory + "/" + versionedFolder(location.name) + bundle;
    std::error_code failed;
    return bundleWithPath(std::filesystem::is_directory(versioned, failed) ? versioned : location.directory + bundle);
}

const NSBundle& NSBundle::mainBundle() {
    const Runtime::CodeLocation program = Runtime::mainProgramLocation();
    return bundleWithPath(program.directory + "/" + program.name + ".bundle");
}

const std::string& NSBundle::bundlePath() const noexcept {
    return contents_.path;
}

const std::string& NSBundle::developmentLocalization() const noexcept {
    return contents_.developmentLocalization;
}

const std::vector<std::string>& NSBundle::localizations() const noexcept {
    return contents_.localizations;
}

const std::vector<std::string>& NSBundle::preferredLocalizations() const {
    return contents_.answers().preferred;
}

std::optional<LocalizedFormat> NSBundle::findLocalized(std::string_view key, std::string_view table) const {
    const std::string_view name = table.empty() ? std::string_view("Localizable") : table;
    for (detail::Localization* localization : contents_.answers().chain)
        if (const auto found = localization->find(key, name))
            return found;
    return std::nullopt;
}

LocalizedFormat NSBundle::localizedFormat(std::string_view key, std::string_view table) const {
    return findLocalized(key, table).value_or(LocalizedFormat(key));
}

std::string_view NSBundle::localizedText(std::string_view key, std::string_view table) const {
    return localizedFormat(key, table).text();
}

std::string NSBundle::localizedStringForKey(std::string_view key, const std::string* value,
                                            std::string_view table) const {
    if (const auto found = findLocalized(key, table))
        return std::string(found->text());
    return value != nullptr && !value->empty() ? *value : std::string(key);
}

std::optional<std::string> NSBundle::pathForResource(std::string_view name, std::string_view type,
                                                     std::string_view directory, std::string_view localization) const {
    if (leadsOut(name) || leadsOut(type) || leadsOut(directory) || leadsOut(localization))
        return std::nullopt;
    std::string path = contents_.path;
    path.append("/").append(localization).append(".lproj/");
    if (!directory.empty())
        path.append(directory).append("/");
    path.append(name);
    if (!type.empty())
        path.append(".").append(type);
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return path;
}

} // namespace Foundation
