#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSNumberFormatter.h"

#include "../Support/TemporaryFolder.h"
#include <chrono>
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <latch>
#include <sys/stat.h>
#include <thread>

namespace {

using Foundation::NSBundle;
namespace Host = Foundation::Host;

// Each test has its own bundle, because bundles keep what they have read.
class Bundle : public ::testing::Test {
protected:
    ~Bundle() override { Host::reset(); }

    void write(std::string_view file, std::string_view bytes) { folder_.write(file, bytes); }
    const NSBundle& bundle() { return NSBundle::bundleWithPath(folder_.path()); }
    std::string text(std::string_view key, std::string_view table = "Localizable") {
        return bundle().localizedStringForKey(key, nullptr, table);
    }
    std::vector<std::string> preferred(const std::vector<std::string>& languages) {
        Host::setPreferredLanguages(languages);
        return bundle().preferredLocalizations();
    }

    Support::TemporaryFolder folder_;
};

using Languages = std::vector<std::string>;

TEST_F(Bundle, ChoosesTheLanguagesThatTheUserReads) {
    for (const char* language : {"Base", "ar", "de", "es", "es-419", "pt-BR", "pt-PT", "ru", "zh-Hans", "nb"})
        write(std::string(language) + ".lproj/Localizable.strings", "");
    const struct {
        int line;
        Languages user;
        Languages expected;
    } cases[] = {
        {__LINE__, {"ru"}, {"ru"}},
        {__LINE__, {"de_AT"}, {"de"}},
        {__LINE__, {"de-CH-1996"}, {"de"}},
        {__LINE__, {"es_MX"}, {"es-419"}},
        {__LINE__, {"es_ES"}, {"es"}},
        {__LINE__, {"es"}, {"es"}},
        {__LINE__, {"pt_AO"}, {"pt-PT"}},
        {__LINE__, {"pt_BR"}, {"pt-BR"}},
        {__LINE__, {"zh_CN"}, {"zh-Hans"}},
        {__LINE__, {"en_GB"}, {"en"}},
        {__LINE__, {"no"}, {"nb"}},
        {__LINE__, {"fr", "de", "ru_RU.UTF-8", "de_DE"}, {"de", "ru"}},
        // A related language that the user did not list is never chosen; the development language is used.
        {__LINE__, {"uk"}, {"en"}},
        {__LINE__, {"ca"}, {"en"}},
        {__LINE__, {"xx", "", "!!"}, {"en"}},
        {__LINE__, {}, {"en"}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(preferred(one.user), one.expected) << "line " << one.line;
}

TEST_F(Bundle, LooksInTheChosenLanguageThenInTheDevelopmentTexts) {
    write("Base.lproj/Localizable.strings", "both = Base; base = \"only Base\";");
    write("ru.lproj/Localizable.strings", "both = ru; \"key\" = \"key\";");
    write("ru.lproj/Other.strings", "both = other;");
    Host::setPreferredLanguages({"ru"});
    EXPECT_EQ(text("both"), "ru");
    EXPECT_EQ(text("base"), "only Base");
    EXPECT_EQ(text("both", "Other"), "other");
    EXPECT_EQ(text("both", ""), "ru");
    EXPECT_EQ(text("Both"), "Both");
    EXPECT_EQ(text("both", "None"), "both");
    EXPECT_EQ(text("both", "../ru.lproj/Other"), "both");
    const std::string value = "instead";
    EXPECT_EQ(bundle().localizedStringForKey("none", &value, "Localizable"), "instead");
    EXPECT_EQ(bundle().localizedStringForKey("none", "text", "Localizable"), "text");
    EXPECT_EQ(bundle().localizedStringForKey("key", &value, "Localizable"), "key");

    // The next call uses the changed languages of the host.
    Host::setPreferredLanguages({"en"});
    EXPECT_EQ(text("both"), "Base");
}

// System calls would read such a name only up to the NUL and find another file.
TEST_F(Bundle, RejectsNamesWithANul) {
    const std::string nul(1, '\0');
    write("Base.lproj/T.strings", "a = text;");
    write("de.lproj/T.strings", "a = deutsch;");
    Host::setPreferredLanguages({"de" + nul});
    EXPECT_EQ(text("a", "T"), "text");
    EXPECT_EQ(text("a", "T" + nul), "a");
    EXPECT_EQ(text("a", "T.strings" + nul), "a");
    EXPECT_EQ(bundle().pathForResource("T" + nul, "strings", "", "de"), std::nullopt);
    EXPECT_EQ(bundle().pathForResource("T.strings" + nul, "", "", "de"), std::nullopt);
    EXPECT_EQ(bundle().pathForResource("T", "strings", "", "de.lproj" + nul), std::nullopt);
    const NSBundle& none = NSBundle::bundleWithPath(folder_.path().string() + nul);
    EXPECT_TRUE(none.localizations().empty());
    EXPECT_EQ(none.pathForResource("T", "strings", "", "de"), std::nullopt);
    EXPECT_FALSE(Foundation::NSDictionary::dictionaryWithContentsOfFile(folder_ / ("de.lproj/T.strings" + nul)));

    Host::setCurrentLocale("de_DE" + nul);
    EXPECT_EQ(Foundation::Locale::current().identifier(), "de_DE" + nul);
    EXPECT_EQ(Foundation::NSNumberFormatter().stringFromNumber(1234.5), "1,234.5"); // as the root locale
}

// A bundle shows only files inside it; it may itself be opened through a link.
TEST_F(Bundle, FollowsNoLinkOutOfIt) {
    write("Base.lproj/T.strings", "a = text;");
    write("common/S.strings", "a = common;");
    const Support::TemporaryFolder elsewhere;
    const std::string secret = elsewhere.write("X.strings", "a = secret;");
    std::filesystem::create_symlink("../common/S.strings", folder_ / "Base.lproj/S.strings");
    std::filesystem::create_symlink(secret, folder_ / "Base.lproj/X.strings");
    std::filesystem::create_symlink(elsewhere / "none", folder_ / "Base.lproj/N.strings");
    std::filesystem::create_directory_symlink(elsewhere.path(), folder_ / "de.lproj");
    std::filesystem::create_directory_symlink(folder_.path(), elsewhere / "B.bundle");
    Host::setPreferredLanguages({"de"});
    for (const NSBundle* one : {&bundle(), &NSBundle::bundleWithPath(elsewhere / "B.bundle")}) {
        const auto text = [&](std::string_view table) { return one->localizedStringForKey("a", nullptr, table); };
        EXPECT_EQ(text("T"), "text");
        EXPECT_EQ(text("S"), "common");
        EXPECT_EQ(text("X"), "a");
        EXPECT_EQ(text("N"), "a");
        EXPECT_EQ(one->tableDamage("X"), one->bundlePath() +
                                             "/de.lproj/X.strings: is reached by a link that leads out of " +
                                             one->bundlePath());
        EXPECT_TRUE(one->pathForResource("S", "strings", "", "Base"));
        EXPECT_FALSE(one->pathForResource("X", "strings", "", "Base"));
        EXPECT_FALSE(one->pathForResource("X", "strings", "", "de"));
    }
}

// Copies of libm stand for the library with the code, with and without a version. The folder none-3 does not exist.
TEST_F(Bundle, IsBesideTheLibraryWithTheCode) {
    const void* const anyCode = ::dlsym(::dlopen("libm.so.6", RTLD_NOW), "cos");
    Dl_info any{};
    ASSERT_NE(::dladdr(anyCode, &any), 0);
    write("None.bundle/Info.plist", "");
    write("none-2/None.bundle/Info.plist", "");
    const std::pair<const char*, const char*> cases[] = {
        {"libnone.so", "None.bundle"}, {"libnone.so.2.5", "none-2/None.bundle"}, {"libnone.so.3", "None.bundle"}};
    for (const auto& [library, expected] : cases) {
        std::filesystem::copy_file(any.dli_fname, folder_ / library);
        const void* const code = ::dlsym(::dlopen((folder_ / library).c_str(), RTLD_NOW), "cos");
        EXPECT_EQ(NSBundle::bundleForCode(code, "None").bundlePath(),
                  std::filesystem::canonical(folder_ / expected).string());
    }
}

TEST_F(Bundle, ReadsATableOnce) {
    write("Base.lproj/Localizable.strings", "a = first;");
    EXPECT_EQ(text("a"), "first");
    write("Base.lproj/Localizable.strings", "a = second;");
    EXPECT_EQ(text("a"), "first");
}

TEST_F(Bundle, WithADamagedTableReturnsKeys) {
    write("Base.lproj/Localizable.strings", "a = first; b = ");
    EXPECT_EQ(text("a"), "a");
}

TEST_F(Bundle, TakesItsDevelopmentRegionFromInfoPlist) {
    write("Info.plist", "<plist><dict><key>CFBundleDevelopmentRegion</key><string>fr</string></dict></plist>");
    write("fr.lproj/Localizable.strings", "a = un;");
    write("de.lproj/Localizable.strings", "b = zwei;");
    EXPECT_EQ(preferred({"it"}), Languages{"fr"});
    EXPECT_EQ(preferred({"de"}), Languages{"de"});
    EXPECT_EQ(text("a"), "un");
}

// `lumora compile` writes the list of languages; a list that contradicts the folder is ignored.
TEST_F(Bundle, TakesItsLanguagesFromInfoPlistIfTheyExist) {
    const auto write = [](const Support::TemporaryFolder& folder, const char* languages) {
        folder.write("Info.plist", std::string("LumoraLanguages = \"") + languages + "\";");
        folder.write("Base.lproj/T.strings", "a = text;");
        folder.write("de.lproj/T.strings", "a = deutsch;");
    };
    const Support::TemporaryFolder right, tooFew, none;
    write(right, "Base/de/");
    write(tooFew, "Base/");
    write(none, "");
    const Languages expected = {"de", "en"};
    Host::setPreferredLanguages({"de"});
    for (const auto* folder : {&right, &tooFew, &none}) {
        const NSBundle& one = NSBundle::bundleWithPath(folder->path());
        EXPECT_EQ(one.localizations(), expected);
        EXPECT_EQ(one.localizedText("a", "T"), "deutsch");
    }
}

TEST_F(Bundle, FindsTheFilesOfOneLocalization) {
    write("Base.lproj/Localizable.strings", "");
    write("ru.lproj/help/page.html", "");
    const auto path = [&](auto name, auto type, auto directory, auto localization) {
        return bundle().pathForResource(name, type, directory, localization).value_or("none");
    };
    EXPECT_EQ(path("Localizable", "strings", "", "Base"), folder_ / "Base.lproj/Localizable.strings");
    EXPECT_EQ(path("page", "html", "help", "ru"), folder_ / "ru.lproj/help/page.html");
    EXPECT_EQ(path("Localizable", "strings", "", "en"), "none");
    EXPECT_EQ(path("../Base.lproj/Localizable", "strings", "", "ru"), "none");
    EXPECT_EQ(path("Localizable", "strings", "", "ru.lproj/../Base"), "none");
}

TEST_F(Bundle, SeesNewTextsAfterAReload) {
    write("Base.lproj/Localizable.strings", "a = old;");
    Host::setPreferredLanguages({"fr"});
    const std::string_view before = bundle().localizedText("a", "");
    write("Base.lproj/Localizable.strings", "a = new;");
    write("fr.lproj/Other.strings", "b = neuf;");
    EXPECT_EQ(text("a"), "old");
    bundle().reload();
    EXPECT_EQ(text("a"), "new");
    EXPECT_EQ(text("b", "Other"), "neuf");
    EXPECT_EQ(bundle().localizations(), (Languages{"en", "fr"}));
    EXPECT_EQ(before, "old");
}

TEST_F(Bundle, KeepsItsContentIfAReloadFindsNoChange) {
    const auto reloaded = [this] {
        bundle().reload();
        return &bundle().localizations();
    };
    write("Base.lproj/Localizable.strings", "a = old;");
    // A file written in the last 100 ms may change again within the same tick of the clock, so it is read again.
    EXPECT_NE(reloaded(), reloaded());
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_EQ(reloaded(), reloaded());
    EXPECT_EQ(text("a"), "old");
    write("Base.lproj/Localizable.strings", "a = new;");
    bundle().reload();
    EXPECT_EQ(text("a"), "new");
    // A modification time in the future may be the same after another change, so each reload reads the file. This time
    // also exceeds 2^63 nanoseconds.
    const timespec future[] = {{.tv_sec = 0, .tv_nsec = 0}, {.tv_sec = time_t{1} << 34, .tv_nsec = 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder_ / "Base.lproj/Localizable.strings").c_str(), future, 0), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_NE(reloaded(), reloaded());
}

TEST(BundleThreads, SeeOneStateOrTheOther) {
    const Support::TemporaryFolder folder;
    folder.write("Base.lproj/Localizable.strings", "language = en;");
    folder.write("ru.lproj/Localizable.strings", "language = ru;");
    folder.write("de.lproj/Localizable.strings", "language = de;");
    const NSBundle& bundle = NSBundle::bundleWithPath(folder.path());
    Host::setPreferredLanguages({"ru"});
    std::latch ready(5);
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            ready.arrive_and_wait();
            for (int n = 0; n < 3000; ++n) {
                const std::string_view text = bundle.localizedText("language", "Localizable");
                ASSERT_TRUE(text == "ru" || text == "de") << text;
                ASSERT_EQ(&NSBundle::bundleWithPath(folder.path()), &bundle);
            }
        });
    ready.arrive_and_wait();
    for (int n = 0; n < 500; ++n) {
        Host::setPreferredLanguages({n % 2 == 0 ? "de" : "ru"});
        if (n % 10 == 0)
            bundle.reload();
    }
    threads.clear();
    Host::reset();
}

} // namespace
