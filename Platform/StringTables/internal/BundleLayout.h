// StringTables/internal/BundleLayout.h
// The layout of a bundle's texts: Info.plist, and for each language a folder LANGUAGE.lproj with its tables,
// TABLE.strings and TABLE.stringsdict. Info.plist names the development language. The texts of that language are in
// Base.lproj, in the language's own folder, or in both.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace StringTables::bundleLayout {

inline constexpr std::string_view languageSuffix = ".lproj";
inline constexpr std::string_view baseName = "Base"; // takes the place of the language in Base.lproj
inline constexpr std::string_view textsSuffix = ".strings";
inline constexpr std::string_view pluralsSuffix = ".stringsdict";
inline constexpr std::string_view defaultTable = "Localizable";

inline constexpr std::string_view informationFile = "Info.plist";
inline constexpr std::string_view developmentRegionKey = "CFBundleDevelopmentRegion"; // its value is a language
inline constexpr std::string_view defaultRegion = "en";                               // if there is no such key

// `lumora compile` adds this to Info.plist, so that readers need not list the directory: the languages, "Base"
// included, each followed by the separator ("Base/de/"). An Info.plist that is copied unchanged, because it has other
// values than texts, lacks it.
inline constexpr std::string_view languagesKey = "LumoraLanguages";
inline constexpr char languageSeparator = '/'; // cannot be part of a folder's name

// "de" for "de.lproj"; empty for another name.
constexpr std::string_view languageOfFolder(std::string_view folder) noexcept {
    return folder.ends_with(languageSuffix) ? folder.substr(0, folder.size() - languageSuffix.size())
                                            : std::string_view();
}

inline std::string folderOfLanguage(std::string_view language) {
    return std::string(language).append(languageSuffix);
}

// The files of a table in a language's folder.
inline std::string textsFile(std::string_view table) {
    return std::string(table).append(textsSuffix);
}
inline std::string pluralsFile(std::string_view table) {
    return std::string(table).append(pluralsSuffix);
}

// The folders in which a text is looked up, without their suffix and in this order, for a user of the language
// `chosen`. May contain a name twice.
constexpr std::array<std::string_view, 3> lookupOrder(std::string_view chosen, std::string_view development) noexcept {
    return {chosen, baseName, development};
}

// Whether `name` is a single path component, so that it cannot leave its folder.
constexpr bool isFileName(std::string_view name) noexcept {
    return !name.empty() && name != "." && name != ".." && name.find_first_of(std::string_view("/\0", 2)) == name.npos;
}

// Whether `name` with languageSuffix can be the name of a folder. Names come from files that others wrote, too.
constexpr bool canBeLanguage(std::string_view name) noexcept {
    constexpr std::size_t longestName = 255; // NAME_MAX
    return isFileName(name) && name.size() + languageSuffix.size() <= longestName;
}

} // namespace StringTables::bundleLayout
