// growth BUNDLE SOURCE EXPECTED LANGUAGE...
// Measures loading the binary tables of BUNDLE, reading the text tables of SOURCE with a lookup of every key, and
// reading the texts of the last language from the loaded bundle. First compares every text of BUNDLE and SOURCE with
// the file EXPECTED/LANGUAGE: keys and texts in turn, each ended by NUL. Prints the lines "load", "check" and "read"
// with nanoseconds ("read": for one text). Ends with 1 if a text is wrong, with 2 if an argument or a file in
// EXPECTED is missing.
#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Runtime/internal/File.h"
#include "StringTables/internal/Table.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <random>

namespace {

using StringTables::Table;
using Texts = std::vector<std::pair<std::string_view, std::string_view>>;

Texts textsOf(std::string_view bytes) {
    Texts texts;
    const auto next = [&bytes] {
        const std::string_view one = bytes.substr(0, bytes.find('\0'));
        bytes.remove_prefix(std::min(one.size() + 1, bytes.size()));
        return one;
    };
    while (!bytes.empty()) {
        const std::string_view key = next();
        texts.emplace_back(key, next());
    }
    return texts;
}

bool holds(const Runtime::Result<Table>& table, const Texts& expected) {
    return table && table->entries().size() == expected.size() &&
           std::ranges::all_of(expected, [&](const auto& one) { return table->find(one.first) == one.second; });
}

// Processor time, the minimum of several runs, because other processes may be running.
double nanoseconds(const auto& work) {
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
    };
    double least = std::numeric_limits<double>::max();
    for (int run = 0; run != 7; ++run) {
        const double begin = now();
        work();
        least = std::min(least, now() - begin);
    }
    return least;
}

struct Language {
    std::string name;
    std::string bytes; // of the file EXPECTED/LANGUAGE
    Texts expected;    // views of `bytes`
};

// Returns the exit status.
int measure(const std::string& bundlePath, const std::string& sourcePath, const std::vector<Language>& languages) {
    const auto tablePath = [](const std::string& folder, const Language& language) {
        return folder + "/" + language.name + ".lproj/Localizable.strings";
    };
    for (const Language& language : languages)
        for (const std::string& folder : {bundlePath, sourcePath})
            if (!holds(Table::readFile(tablePath(folder, language)), language.expected)) {
                std::fprintf(stderr, "wrong: %s\n", tablePath(folder, language).c_str());
                return 1;
            }
    std::printf("load %.0f\n", nanoseconds([&] {
                    for (const Language& language : languages)
                        (void)Table::readFile(tablePath(bundlePath, language));
                }));
    std::printf("check %.0f\n", nanoseconds([&] {
                    for (const Language& language : languages)
                        (void)holds(Table::readFile(tablePath(sourcePath, language)), language.expected);
                }));

    const Language& last = languages.back();
    // Base has the texts of the development language.
    Foundation::Host::setPreferredLanguages({last.name == "Base" ? "en" : last.name});
    const Foundation::NSBundle& bundle = Foundation::NSBundle::bundleWithPath(bundlePath);
    Texts shuffled = last.expected;
    std::ranges::shuffle(shuffled, std::mt19937(1));
    for (const auto& [key, text] : shuffled)
        if (bundle.localizedText(key, "Localizable") != text) {
            std::fprintf(stderr, "wrong: the text of %.*s\n", static_cast<int>(key.size()), key.data());
            return 1;
        }
    const double readAll = nanoseconds([&] {
        for (const auto& one : shuffled)
            (void)bundle.localizedText(one.first, "Localizable");
    });
    std::printf("read %.1f\n", readAll / static_cast<double>(shuffled.size()));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 5)
        return 2;
    std::vector<Language> languages;
    for (int i = 4; i != argc; ++i) {
        auto bytes = Runtime::readFile(std::string(argv[3]) + "/" + argv[i], Table::maxBytes);
        if (!bytes)
            return 2;
        languages.push_back({argv[i], *std::move(bytes), {}});
    }
    for (Language& language : languages) // not in the loop above, whose push_back() may move `bytes`
        language.expected = textsOf(language.bytes);
    return measure(argv[1], argv[2], languages);
}
