// Foundation/NSBundle.h
// A directory of resources: string tables per language in NAME.lproj folders, compiled assets, Info.plist.
// Text: UTF-8; paths as the file system has them. Threads: all members from any thread; after a first read no look-up
// takes a lock. Ownership: bundles, and every view and reference they give, live until the process ends.
#pragma once

#include "Foundation/LocalizedFormat.h"
#include "Runtime/Export.h"
#include <atomic>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation {

class LUMORA_EXPORT NSBundle {
public:
    // The bundle NAME.bundle of the shared object that holds `code` (the address of a function or static object): in
    // the folder LIBRARY-VERSION beside it ("lumora-1" for liblumora.so.1.0.0) if there is one, else beside it; the
    // main bundle when the code is the program's own.
    [[nodiscard]] static const NSBundle& bundleForCode(const void* code, std::string_view name);
    // PROGRAM.bundle in the directory of the program.
    [[nodiscard]] static const NSBundle& mainBundle();
    // The bundle at a path; the same object for the same path. A directory that is not there is a bundle without
    // resources.
    [[nodiscard]] static const NSBundle& bundleWithPath(const std::string& path);

    NSBundle(const NSBundle&) = delete;
    NSBundle& operator=(const NSBundle&) = delete;

    // Absolute if the path that named the bundle was.
    [[nodiscard]] const std::string& bundlePath() const noexcept;
    // The language of the development texts: Info.plist's CFBundleDevelopmentRegion, "en" without one.
    [[nodiscard]] const std::string& developmentLocalization() const noexcept;
    // The languages of the bundle, sorted: one for each *.lproj folder, Base.lproj standing for the development
    // language.
    [[nodiscard]] const std::vector<std::string>& localizations() const noexcept;
    // Those of `localizations` that the user reads, the best liked first, by the host's preferred languages now; the
    // development language alone when the user reads none. Empty when the bundle has no languages.
    [[nodiscard]] std::vector<std::string> preferredLocalizations() const;
    // The first of them, or null; faster.
    [[nodiscard]] const std::string* preferredLocalization() const;

    // What the bundle has for `key` (exact) in the table `table` (empty: "Localizable"): the entry of the first
    // preferred localization, else of the development texts, or no value. A plural wins over a text of its
    // localization. A damaged or missing table is a table without keys. Each table is read once.
    [[nodiscard]] std::optional<LocalizedFormat> findLocalized(std::string_view key, std::string_view table) const;
    // The same with `key` itself, as a text, where no table has it.
    [[nodiscard]] LocalizedFormat localizedFormat(std::string_view key, std::string_view table) const;
    // The text of localizedFormat(), a view that lives until the process ends, or `key`.
    [[nodiscard]] std::string_view localizedText(std::string_view key, std::string_view table) const;
    // The text as a string; where no table has the key, `value` unless that is null or empty, and else the key.
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, const std::string* value,
                                                    std::string_view table) const;
    // Why a file of the table cannot be read, of those in which findLocalized() looks: "FILE:LINE:COLUMN: REASON", or
    // "PATH: REASON" where the bundle itself is not there; no value when each can or is not there. Reads them anew.
    [[nodiscard]] std::optional<std::string> tableDamage(std::string_view table) const;
    // The path of the file NAME.TYPE (NAME where TYPE is empty) of one localization ("Base" is one), in `directory`
    // below the localization's folder if that is not empty; no value when there is no such file or a name would lead
    // out of the bundle.
    [[nodiscard]] std::optional<std::string> pathForResource(std::string_view name, std::string_view type,
                                                             std::string_view directory,
                                                             std::string_view localization) const;

    // For development: later look-ups read the bundle's files anew, as after a compile while the program runs. Nothing
    // happens by itself. Seen anew are the languages and every text that this bundle is asked for; accessors of
    // formatted texts ask it at each call. Not seen anew are the texts that accessors of plain texts have kept, and
    // pictures, colours and data. Views and references that were given out stay valid: what was read before keeps its
    // memory. Throws std::bad_alloc, or std::system_error when descriptors run out; the bundle is then as it was.
    void reload() const;

private:
    struct Contents;
    explicit NSBundle(Contents& contents) noexcept : contents_(&contents) {}
    ~NSBundle() = default;
    Contents& contents() const noexcept { return *contents_.load(std::memory_order_acquire); }

    mutable std::atomic<Contents*> contents_; // another one after each reload
};

} // namespace Foundation
