// Foundation/NSBundle.h
// A directory of resources: Info.plist, compiled assets, and string tables in one NAME.lproj folder for each language.
// Text: UTF-8; paths are raw bytes. Threads: any; after the first read, lookups are lock-free. Ownership: bundles, and
// all views and references to their content, live until the process ends. Errors: functions without noexcept throw
// std::bad_alloc, and std::system_error on transient errors, such as too many open files.
#pragma once

#include "Foundation/LocalizedFormat.h"
#include "Foundation/LocalizedKey.h"
#include "Runtime/Export.h"
#include <atomic>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation {

class LUMORA_EXPORT NSBundle {
public:
    // The bundle NAME.bundle for the shared object that contains `code` (the address of a function or static object):
    // that in the folder LIBRARY-VERSION beside the shared object ("lumora-1" for liblumora.so.1.0.0) if there is one,
    // else that in the shared object's own folder. For code of the main program: the main bundle.
    [[nodiscard]] static const NSBundle& bundleForCode(const void* code, std::string_view name);
    // PROGRAM.bundle in the directory of the program.
    [[nodiscard]] static const NSBundle& mainBundle();
    // The bundle at a path; the same object for the same path. A missing directory gives a bundle without resources.
    [[nodiscard]] static const NSBundle& bundleWithPath(const std::string& path);

    NSBundle(const NSBundle&) = delete;
    NSBundle& operator=(const NSBundle&) = delete;

    // The path of the bundle, absolute if the path it was opened with was.
    [[nodiscard]] const std::string& bundlePath() const noexcept;
    // The language of the development texts: CFBundleDevelopmentRegion in Info.plist, or "en".
    [[nodiscard]] const std::string& developmentLocalization() const noexcept;
    // The languages of the bundle, sorted: one for each *.lproj folder; Base.lproj counts as the development language.
    [[nodiscard]] const std::vector<std::string>& localizations() const noexcept;
    // The localizations that the user reads, most preferred first, according to the host's current preferred languages;
    // only the development language when the user reads none. Empty when the bundle has no languages.
    [[nodiscard]] std::vector<std::string> preferredLocalizations() const;
    // The first of these, or null if the bundle has no languages. Faster than preferredLocalizations().
    [[nodiscard]] const std::string* preferredLocalization() const;

    // The entry for `key` (exact) in the table `table` (empty: "Localizable"): that of the first preferred
    // localization, else that of the development texts, else no value. Within a localization a plural takes precedence
    // over a text. A missing table has no keys; nor has a damaged one, except for the intact entries of a compiled
    // table. What was read of a table is kept.
    [[nodiscard]] std::optional<LocalizedFormat> findLocalized(std::string_view key, std::string_view table) const;
    [[nodiscard]] std::optional<LocalizedFormat> findLocalized(const LocalizedKey& key) const;
    // The same, but with `key` itself as the text when no table has it.
    [[nodiscard]] LocalizedFormat localizedFormat(std::string_view key, std::string_view table) const;
    // The formatted text: localizedFormat() with its placeholders replaced, in the user's current locale.
    [[nodiscard]] std::string formattedText(const LocalizedKey& key, std::span<const FormatArgument> arguments) const;
    // The text of localizedFormat(): a view that lives until the process ends, or `key` itself.
    [[nodiscard]] std::string_view localizedText(std::string_view key, std::string_view table) const;
    // The text as a string. When no table has the key: `value`, or the key if `value` is null or empty.
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, std::string_view value,
                                                    std::string_view table) const;
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, const std::string* value,
                                                    std::string_view table) const;
    // Why a file of a table, in the folders that findLocalized() searches now, cannot be read: "FILE:LINE:COLUMN:
    // REASON", or "PATH: REASON" if the bundle itself cannot be read. No value when each file is readable or missing.
    // Reads the files again.
    [[nodiscard]] std::optional<std::string> tableDamage(std::string_view table) const;
    // The path of the file NAME.TYPE (NAME if TYPE is empty) of one localization (or of "Base"), in the subfolder
    // `directory` of the localization's folder unless `directory` is empty. No value when there is no such file, when a
    // name is not that of a single file or folder, or when a link leads out of the bundle.
    [[nodiscard]] std::optional<std::string> pathForResource(std::string_view name, std::string_view type,
                                                             std::string_view directory,
                                                             std::string_view localization) const;

    // For development: makes later lookups read the bundle's files again, for example after a compile while the program
    // runs. There is no automatic reload. The languages, all texts looked up through this bundle and the accessors of
    // formatted texts then use the new files. Texts that accessors of plain texts have already cached, pictures,
    // colours and data stay the same. Views and references to the old content stay valid, because it is never freed;
    // but if no file has changed since the last reload, the content is kept and no memory is used. If it throws, the
    // bundle is unchanged.
    void reload() const;

private:
    struct Contents;
    explicit NSBundle(Contents& contents) noexcept : contents_(&contents) {}
    ~NSBundle() = default;
    Contents& contents() const noexcept { return *contents_.load(std::memory_order_acquire); }

    mutable std::atomic<Contents*> contents_; // replaced by each reload
};

} // namespace Foundation
