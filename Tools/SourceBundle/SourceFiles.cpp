#include "SourceBundle/SourceFiles.h"

#include "SourceBundle/LowerCase.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
namespace layout = StringTables::bundleLayout;

namespace {

constexpr std::string_view catalogSuffix = ".xcassets";
constexpr std::string_view stringCatalogSuffix = ".xcstrings";

std::optional<TableFile::Kind> kindOf(const fs::path& file) {
    const fs::path extension = file.extension();
    if (extension == layout::textsSuffix)
        return TableFile::Kind::texts;
    if (extension == layout::pluralsSuffix)
        return TableFile::Kind::plurals;
    if (extension == stringCatalogSuffix)
        return TableFile::Kind::catalog;
    return std::nullopt;
}

class Finder {
public:
    explicit Finder(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

    void findSource(const fs::path& folder) {
        std::error_code failed;
        if (!fs::is_directory(folder, failed))
            return add(Severity::error, folder, "is not a folder of resources");
        if (fs::exists(folder / compiledMark, failed))
            return add(Severity::error, folder, "is a compiled bundle, not a source");
        const std::size_t errors = diagnostics_.count(Severity::error);
        isEmpty_ = true;
        findIn(folder);
        if (isEmpty_ && diagnostics_.count(Severity::error) == errors)
            add(Severity::error, folder, "has no tables (*.lproj, *.xcstrings) and no asset catalogs (*.xcassets)");
    }

    void findIn(const fs::path& folder) {
        std::error_code failed;
        given_ = folder;
        source_ = fs::canonical(folder, failed);
        findInfo(folder / layout::informationFile);
        findInFolder(folder, 0);
    }

    SourceFiles take() {
        // Catalogs with the same name are combined, so they must be adjacent.
        std::ranges::stable_sort(found_.catalogs, {}, [](const fs::path& catalog) { return catalog.stem(); });
        return std::move(found_);
    }

private:
    void add(Severity severity, const fs::path& file, std::string message) {
        diagnostics_.add(severity, {.message = std::move(message), .file = file});
    }

    // Whether the path, with its links followed, is inside the given folder.
    bool isInside(const fs::path& path) const {
        std::error_code failed;
        const fs::path inside = fs::weakly_canonical(path, failed).lexically_relative(source_);
        return !failed && !inside.empty() && *inside.begin() != "..";
    }
    // False, with an error, for a link that leads out of the given folder: no content from elsewhere may be disclosed.
    bool mayRead(const fs::directory_entry& entry) {
        if (!entry.is_symlink() || isInside(entry.path()))
            return true;
        diagnostics_.add(Severity::error, {.message = "is a link that leads out of the source", .file = entry.path()},
                         Topic::unreadableTable);
        return false;
    }
    // Remembers the table or catalog; false if it is known, because one given folder may contain another.
    bool addKnown(const fs::path& path) { return known_.insert(source_ / path.lexically_relative(given_)).second; }

    void findInfo(const fs::path& file) {
        std::error_code failed;
        if (const fs::directory_entry entry(file, failed); !failed && entry.exists(failed) && mayRead(entry))
            found_.infos.push_back(file);
    }

    void findInFolder(const fs::path& folder, int depth) {
        for (const fs::directory_entry& entry : sortedEntries(folder, diagnostics_))
            if (std::error_code failed; entry.is_directory(failed))
                findFolder(entry, depth + 1);
            else
                findFile(entry);
    }

    // `depth`: the number of folders around the entry, up to and including the given one.
    void findFolder(const fs::directory_entry& entry, int depth) {
        const fs::path& path = entry.path();
        const bool isLanguage = path.extension() == layout::languageSuffix;
        if (depth > maxFolderDepth)
            add(Severity::error, path, "is nested too deeply");
        else if (entry.is_symlink() && (!isLanguage || isBehindLink_))
            add(Severity::note, path, "is a link to a folder and is left out");
        else if (isLanguage)
            findInLanguageFolder(entry, depth);
        else if (path.extension() == catalogSuffix)
            addCatalog(path);
        else if (std::error_code failed; fs::exists(path / compiledMark, failed))
            add(Severity::note, path, "is a compiled bundle and is left out");
        else if (!hasCapitalExtension(path))
            findInFolder(path, depth);
    }

    // Whether the extension is a known one but has capitals, which gives a warning: systems that ignore case in file
    // names accept it.
    bool hasCapitalExtension(const fs::path& path) {
        const std::string extension = lowerCase(path.extension());
        static constexpr std::string_view known[] = {layout::languageSuffix, catalogSuffix, layout::textsSuffix,
                                                     layout::pluralsSuffix, stringCatalogSuffix};
        if (extension == path.extension() || std::ranges::find(known, extension) == std::end(known))
            return false;
        add(Severity::warning, path, "is left out: its extension must be " + extension);
        return true;
    }

    void findFile(const fs::directory_entry& entry) {
        const fs::path& path = entry.path();
        const std::optional<TableFile::Kind> kind = kindOf(path);
        if (path.extension() == layout::languageSuffix)
            add(Severity::warning, path, "is not a folder of tables and is left out");
        else if (kind == TableFile::Kind::catalog)
            addTable(entry, *kind, "");
        else if (kind)
            add(Severity::warning, path, "is not in a language folder (*.lproj) and is left out");
        else if (path.filename() == "Contents.json")
            add(Severity::warning, path.parent_path(), "is not in an asset catalog (*.xcassets) and is left out");
        else
            hasCapitalExtension(path);
    }

    void findInLanguageFolder(const fs::directory_entry& folder, int depth) {
        if (!mayRead(folder))
            return;
        const std::string language = languageNamed(folder.path().stem());
        const bool wasBehindLink = std::exchange(isBehindLink_, isBehindLink_ || folder.is_symlink());
        for (const fs::directory_entry& entry : sortedEntries(folder.path(), diagnostics_)) {
            std::error_code failed;
            const std::optional<TableFile::Kind> kind = kindOf(entry.path());
            if (kind)
                addTable(entry, *kind, kind == TableFile::Kind::catalog ? "" : language);
            else if (entry.is_directory(failed))
                findFolder(entry, depth + 1);
            else if (!hasCapitalExtension(entry.path()))
                add(Severity::note, entry.path(), "is not a table and is left out");
        }
        isBehindLink_ = wasBehindLink;
    }

    void addTable(const fs::directory_entry& entry, TableFile::Kind kind, std::string language) {
        isEmpty_ = false;
        const std::string name = entry.path().stem();
        if (!StringTables::internal::isUtf8(name) || !StringTables::internal::isUtf8(language))
            return add(Severity::warning, entry.path(), "is left out: its name and language must be UTF-8");
        if (mayRead(entry) && addKnown(entry.path()))
            found_.tables.push_back({kind, name, std::move(language), entry.path()});
    }
    void addCatalog(const fs::path& path) {
        isEmpty_ = false;
        if (addKnown(path))
            found_.catalogs.push_back(path);
    }

    Diagnostics& diagnostics_;
    SourceFiles found_;
    fs::path given_;           // the given folder that is searched, as the caller named it
    fs::path source_;          // its canonical path
    std::set<fs::path> known_; // the tables and catalogs found so far, as paths that begin with a `source_`
    bool isEmpty_ = true;      // no table or catalog has been found in the given folder so far
    // The folder that is read was reached by a link. No second link is followed, because links can lead in circles.
    bool isBehindLink_ = false;
};

} // namespace

std::vector<fs::directory_entry> sortedEntries(const fs::path& folder, Diagnostics& diagnostics) {
    std::vector<fs::directory_entry> entries;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (!entry->path().filename().native().starts_with('.'))
            entries.push_back(*entry);
    if (failed)
        diagnostics.add(Severity::error, {.message = "cannot be read: " + failed.message(), .file = folder});
    std::ranges::sort(entries);
    return entries;
}

SourceFiles findFiles(std::span<const fs::path> folders, Diagnostics& diagnostics) {
    Finder finder(diagnostics);
    for (const fs::path& folder : folders)
        finder.findSource(folder);
    return finder.take();
}

SourceFiles findBundleFiles(const fs::path& bundle, Diagnostics& diagnostics) {
    Finder finder(diagnostics);
    finder.findIn(bundle);
    return finder.take();
}

std::string languageNamed(const std::string& name) {
    static constexpr auto languages = std::to_array<std::pair<std::string_view, std::string_view>>(
        {{"Arabic", "ar"},    {"Catalan", "ca"},    {"Chinese", "zh-Hans"}, {"Croatian", "hr"},  {"Czech", "cs"},
         {"Danish", "da"},    {"Dutch", "nl"},      {"English", "en"},      {"Finnish", "fi"},   {"French", "fr"},
         {"German", "de"},    {"Greek", "el"},      {"Hebrew", "he"},       {"Hungarian", "hu"}, {"Indonesian", "id"},
         {"Italian", "it"},   {"Japanese", "ja"},   {"Korean", "ko"},       {"Malay", "ms"},     {"Norwegian", "no"},
         {"Polish", "pl"},    {"Portuguese", "pt"}, {"Romanian", "ro"},     {"Russian", "ru"},   {"Slovak", "sk"},
         {"Spanish", "es"},   {"Swedish", "sv"},    {"Thai", "th"},         {"Turkish", "tr"},   {"Ukrainian", "uk"},
         {"Vietnamese", "vi"}});
    const auto* const found = std::ranges::find(languages, name, &decltype(languages)::value_type::first);
    return found == languages.end() ? name : std::string(found->second);
}

} // namespace SourceBundle
