// StringTables/internal/BundleLayout.h
// How a bundle is laid out: a folder LANGUAGE.lproj for each language with its tables, TABLE.strings and
// TABLE.stringsdict, and Info.plist, which names the language of the development texts. Those are in Base.lproj, in the
// folder of their language, or in both.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace StringTables::bundleLayout {

inline constexpr std::string_view languageSuffix = ".lproj";
inline constexpr std::string_view baseName = "Base"; // the folder of the development texts
inline constexpr std::string_view textsSuffix = ".strings";
inline constexpr std::string_view pluralsSuffix = ".stringsdict";
inline constexpr std::string_view defaultTable = "Localizable";

inline constexpr std::string_view informationFile = "Info.plist";
inline constexpr std::string_view developmentRegionKey = "CFBundleDevelopmentRegion";
inline constexpr std::string_view defaultRegion = "en";

// What `lumora compile` adds to Info.plist, so that no directory has to be listed: the names of the language folders,
// each followed by a separator, and whether one of them has plurals ("yes", "no").
inline constexpr std::string_view languagesKey = "LumoraLanguages";
inline constexpr std::string_view pluralsKey = "LumoraPlurals";
inline constexpr char languageSeparator = '/'; // no folder has it in its name

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

// The languages in whose folders a text is looked for, in this order, when `chosen` is the user's. May name one twice.
constexpr std::array<std::string_view, 3> lookupOrder(std::string_view chosen, std::string_view development) noexcept {
    return {chosen, baseName, development};
}

// Whether `name` is one component of a path, so that nothing outside a folder is reached by it.
constexpr bool isFileName(std::string_view name) noexcept {
    return !name.empty() && name != "." && name != ".." && name.find_first_of(std::string_view("/\0", 2)) == name.npos;
}

} // namespace StringTables::bundleLayout
