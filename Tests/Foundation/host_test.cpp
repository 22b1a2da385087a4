#include "Foundation/Host.h"
#include "Foundation/Locale.h"
#include "Foundation/NSBundle.h"

#include "../Support/TemporaryFolder.h"
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using Foundation::Locale;
namespace Host = Foundation::Host;

// The values of LANGUAGE, LC_ALL, LC_MESSAGES and LANG; null: not set.
struct Environment {
    const char* language;
    const char* all;
    const char* messages;
    const char* lang;
};

void apply(const Environment& environment) {
    const auto set = [](const char* name, const char* value) {
        value != nullptr ? ::setenv(name, value, 1) : ::unsetenv(name);
    };
    set("LANGUAGE", environment.language);
    set("LC_ALL", environment.all);
    set("LC_MESSAGES", environment.messages);
    set("LANG", environment.lang);
    Host::reset();
}

TEST(Host, FollowsTheEnvironmentUntilSet) {
    const Support::TemporaryFolder folder;
    for (const char* name : {"Base", "ru", "de", "sr-Latn", "fr"})
        folder.write(std::string(name) + ".lproj/Localizable.strings", "");
    const Foundation::NSBundle& bundle = Foundation::NSBundle::bundleWithPath(folder.path());
    const struct {
        int line;
        Environment environment;
        std::string locale;
        std::vector<std::string> languages;
    } cases[] = {
        {__LINE__, {nullptr, nullptr, nullptr, nullptr}, "en_US", {"en"}},
        {__LINE__, {nullptr, nullptr, nullptr, "C.UTF-8"}, "en_US", {"en"}},
        {__LINE__, {"ru", "C", nullptr, "ru_RU.UTF-8"}, "en_US", {"en"}},
        {__LINE__, {nullptr, nullptr, nullptr, "de_AT.UTF-8"}, "de_AT", {"de"}},
        {__LINE__, {nullptr, nullptr, "fr_FR.UTF-8", "de_AT.UTF-8"}, "de_AT", {"fr"}},
        {__LINE__, {nullptr, nullptr, "fr_FR", "C.UTF-8"}, "fr_FR", {"fr"}},
        {__LINE__, {nullptr, nullptr, "fr_FR", nullptr}, "fr_FR", {"fr"}},
        {__LINE__, {"ru", nullptr, "C", "de_AT"}, "de_AT", {"en"}},
        {__LINE__, {"ru", "C.UTF-8", "fr_FR", "de_AT"}, "en_US", {"en"}},
        {__LINE__, {"ru", nullptr, nullptr, nullptr}, "en_US", {"ru", "en"}},
        {__LINE__, {"ru", "", "", ""}, "en_US", {"ru", "en"}},
        {__LINE__, {"ru", nullptr, nullptr, "POSIX"}, "en_US", {"en"}},
        {__LINE__, {nullptr, "ru_RU.KOI8-R", "fr_FR", "de_AT"}, "ru_RU", {"ru"}},
        {__LINE__, {"fr::ru", nullptr, nullptr, "de_DE@euro"}, "de_DE", {"fr", "ru", "de"}},
        {__LINE__, {nullptr, nullptr, nullptr, "sr_RS.UTF-8@latin"}, "sr_RS", {"sr-Latn"}},
        {__LINE__, {nullptr, "", "", "ru_RU"}, "ru_RU", {"ru"}},
    };
    for (const auto& one : cases) {
        apply(one.environment);
        EXPECT_EQ(Locale::current().identifier(), one.locale) << "line " << one.line;
        EXPECT_EQ(bundle.preferredLocalizations(), one.languages) << "line " << one.line;
    }

    Host::setCurrentLocale("ar_EG@numbers=latn");
    EXPECT_EQ(Locale::current().identifier(), "ar_EG@numbers=latn");
    EXPECT_EQ(bundle.preferredLocalizations(), std::vector<std::string>{"ru"});
    Host::setPreferredLanguages({"de"});
    EXPECT_EQ(bundle.preferredLocalizations(), std::vector<std::string>{"de"});
    Host::reset();
    EXPECT_EQ(Locale::current().identifier(), "ru_RU");
}

} // namespace
