// Shows some of the application's texts in all its languages, results of its localization services, its progress
// colours, and its pictures by region and sex. Writes these pictures into one PNG.
#include "demo_assets.h"

#include <Lumora/Lumora.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Lumora;
using Corvane::LocalizationCode;
using Foundation::Host::setCurrentLocale;
using Foundation::Host::setPreferredLanguages;

// The width of a text in a terminal: East Asian letters take two columns, combining and invisible characters none.
int columns(const std::string& text) {
    int count = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        std::size_t length = 1;
        if (lead >= 0xF0)
            length = 4;
        else if (lead >= 0xE0)
            length = 3;
        else if (lead >= 0xC0)
            length = 2;
        char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
        for (std::size_t k = 1; k < length && i + k < text.size(); ++k)
            code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        const bool isMark = (code >= 0x300 && code < 0x370) || (code >= 0x610 && code < 0x61B) ||
                            (code >= 0x64B && code < 0x660) || code == 0xE31 || (code >= 0xE34 && code < 0xE3B) ||
                            (code >= 0xE47 && code < 0xE4F) || (code >= 0x200B && code < 0x2010);
        const bool isWide =
            (code >= 0x1100 && code < 0x1160) || (code >= 0x2E80 && code < 0xD7A4) || (code >= 0xFF00 && code < 0xFF61);
        if (!isMark)
            count += isWide ? 2 : 1;
        i += length;
    }
    return count;
}

// Prints the text and spaces after it, at least one, up to `width` columns.
void cell(const std::string& text, int width) {
    std::printf("%s%*s", text.c_str(), std::max(1, width - columns(text)), "");
}

void printTexts() {
    namespace Texts = LumoraStrings::Localizable;
    cell(Localization::currentLanguageCode().rawValue(), 9);
    cell(Texts::continue_(), 20);
    cell(Texts::beginWorkout(), 30);
    cell(Texts::newComment("Ann", 5), 0);
    std::printf("\n");
}

void printServices() {
    cell(Localization::currentLanguageCode().rawValue(), 9);
    cell(Localization::currentLocale().identifier(), 9);
    cell(Localization::legacyTrAge(25), 14);
    cell(LumoraStrings::Localizable::locDays(3), 14);
    constexpr bool withPlusSign = true;
    cell(Localization::legacyTrNumber(1234.5, withPlusSign), 12);
    cell(Localization::legacyTrPercent(0.25, withPlusSign), 0);
    std::printf("\n");
}

// Prints one line for each language, in the locale of that language or in `locale` if it is not null. A plain text
// keeps the language of its first read, so each line is printed by a separate process.
void page(const char* title, void (*printLine)(), const char* locale) {
    std::printf("\n%s\n", title);
    for (const LocalizationCode code : LocalizationCode::allCases()) {
        std::fflush(stdout);
        const pid_t child = ::fork();
        if (child < 0) {
            std::perror("fork");
            std::exit(1);
        }
        if (child == 0) {
            setPreferredLanguages({code.rawValue()});
            setCurrentLocale(locale != nullptr ? locale : code.rawValue());
            printLine();
            std::fflush(stdout);
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
    }
}

} // namespace

int main(int argc, char** argv) {
    page("Texts", printTexts, nullptr);
    page("Services, for a user whose region is Switzerland", printServices, "de_CH");
    const char* sheet = argc > 1 ? argv[1] : "contact-sheet.png";
    if (!showAssets(sheet)) {
        std::fprintf(stderr, "%s: cannot be written\n", sheet);
        return 1;
    }
    return 0;
}
