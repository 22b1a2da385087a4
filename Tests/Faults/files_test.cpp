// Bundle files that are unreadable, replaced, truncated or missing.
#include <Lumora/Lumora.h>

#include "../Support/TemporaryFolder.h"
#include "Child.h"
#include <algorithm>
#include <atomic>
#include <cstdio> // renameat2
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <system_error>
#include <thread>
#include <unistd.h> // close_range

namespace {

namespace fs = std::filesystem;
namespace Assets = Lumora::LumoraAsset;
namespace Texts = Lumora::LumoraStrings::Localizable;
using Foundation::NSBundle;

std::string text(const fs::path& bundle, std::string_view key = "a", std::string_view table = "T") {
    return NSBundle::bundleWithPath(bundle.string()).localizedStringForKey(key, nullptr, table);
}

// Lets the process open no descriptor with the number `end` or above; returns the old limit. Open ones stay open.
rlim_t limitDescriptors(rlim_t end) {
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const rlim_t old = std::exchange(limit.rlim_cur, end);
    ::setrlimit(RLIMIT_NOFILE, &limit);
    return old;
}

TEST(Files, WithoutDescriptorsNothingIsCached) {
    EXPECT_EQ(Child::firstFailure([](int) {
                  Foundation::Host::setPreferredLanguages({"ru"});
                  const rlim_t old = limitDescriptors(0);
                  const bool none = Texts::continue_().empty() && Lumora::Localization::legacyTr("Continue").empty() &&
                                    Lumora::Localization::currentLanguageCode().rawValue() == "en";
                  limitDescriptors(old);
                  const bool all = Texts::continue_() == "Продолжить" &&
                                   Lumora::Localization::legacyTr("Continue") == "Продолжить" &&
                                   Lumora::LumoraAsset::Images::send.image().rgba() != nullptr;
                  return none && all ? 0 : 1;
              }),
              0);
}

template <class Read> std::exception_ptr thrownBy(Read read) {
    try {
        static_cast<void>(read());
    } catch (...) {
        return std::current_exception();
    }
    return nullptr;
}

// Call this when descriptors are free again: the undefined behaviour sanitizer checks an object's type through a
// pipe.
bool isLackOfDescriptors(const std::exception_ptr& thrown) {
    try {
        if (thrown)
            std::rethrow_exception(thrown);
    } catch (const std::system_error& error) {
        return error.code() == std::errc::too_many_files_open;
    } catch (...) {
    }
    return false;
}

// Without descriptors an asset of the module does not count as missing, which would stop the process: its record
// throws. Functions that return an optional result return none.
TEST(Files, WithoutDescriptorsTheProcessContinues) {
    for (const bool isOpen : {false, true}) // whether the bundle is open; its catalog is not
        EXPECT_EQ(Child::firstFailure([isOpen](int) {
                      if (isOpen)
                          static_cast<void>(Lumora::LumoraResources::bundle());
                      const rlim_t old = limitDescriptors(0);
                      const std::exception_ptr thrown[] = {
                          thrownBy([] { return Assets::Images::send.image(); }),
                          thrownBy([] { return Assets::Colors::progressGreen.color(); }),
                          thrownBy([] { return Assets::Onboarding::countryRegions.data(); })};
                      const bool isAbsent = !Lumora::UIImage::assetNamed("send") &&
                                            !Lumora::UIColor::withAsset(Assets::Colors::progressGreen) &&
                                            !Lumora::NSDataAsset::withAsset(Assets::Onboarding::countryRegions);
                      limitDescriptors(old);
                      const bool throws = std::ranges::all_of(thrown, isLackOfDescriptors);
                      const bool isThere = Lumora::UIImage::assetNamed("send") &&
                                           !Assets::Onboarding::countryRegions.data().data().empty();
                      return !throws ? 1 : !isAbsent ? 2 : !isThere ? 3 : 0;
                  }),
                  0)
            << (isOpen ? "with the bundle open" : "at the first use");
}

// The catalog is already open, but the decoders cannot be loaded.
TEST(Files, WithoutDescriptorsPixelsAreMissingTemporarily) {
    EXPECT_EQ(Child::firstFailure([](int) {
                  const UIKit::UIImage image = Lumora::LumoraAsset::Images::send.image();
                  const rlim_t old = limitDescriptors(0);
                  const bool none = image.rgba() == nullptr && image.pixelWidth() > 0;
                  limitDescriptors(old);
                  return none && image.rgba() != nullptr ? 0 : 1;
              }),
              0);
}

// The bundle is already open, but no other file can be opened.
TEST(Files, WithoutDescriptorsDegradedResultsAreNotCached) {
    const struct {
        int line;
        const char* language;
        const char* locale;
        std::string (*read)();
        const char* otherwise; // without descriptors
        const char* right;     // with them
    } cases[] = {
        {__LINE__, "es-MX", "es_MX", [] { return Lumora::Localization::currentLanguageCode().rawValue(); }, "en",
         "es-419"},
        {__LINE__, "es-MX", "es_MX", [] { return Lumora::Localization::legacyTr("Continue"); }, "", "Continuar"},
        {__LINE__, "ru", "ru_RU@numbers=arab", [] { return Lumora::Localization::legacyTrAge(25); }, "",
         "\u0662\u0665 лет"},
        {__LINE__, "de", "de_DE@numbers=arab", [] { return Lumora::Localization::legacyTrNumber(-1234.5, false); }, "",
         "\u061C-\u0661\u066C\u0662\u0663\u0664\u066B\u0665"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Child::firstFailure([&](int) {
                      static_cast<void>(Lumora::LumoraResources::bundle());
                      Foundation::Host::setPreferredLanguages({one.language});
                      Foundation::Host::setCurrentLocale(one.locale);
                      const rlim_t old = limitDescriptors(0);
                      const std::string first = one.read();
                      limitDescriptors(old);
                      const std::string then = one.read();
                      if (first != one.otherwise)
                          return 1;
                      return then != one.right ? 2 : 0;
                  }),
                  0)
            << "line " << one.line;
}

// With a few free descriptors each read gets its text or none, and later the text. Some reads need several files at
// once.
TEST(Files, WithFewDescriptorsNothingIsCached) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the undefined behaviour sanitizer, which is used with this one, checks an object's type through a "
                    "pipe; without descriptors for the pipe it reports a damaged object";
#endif
    EXPECT_EQ(Child::firstFailure([](int repetition) {
                  Foundation::Host::setPreferredLanguages({"ru"});
                  Foundation::Host::setCurrentLocale("ru_RU@numbers=arab");
                  const int next = ::dup(0); // the lowest free descriptor
                  ::close(next);
                  const rlim_t old = limitDescriptors(static_cast<rlim_t>(next + repetition % 10));
                  const std::string& text = Texts::continue_();
                  const std::string age = Lumora::Localization::legacyTrAge(25);
                  if (const auto image = Lumora::UIImage::assetNamed("send"))
                      static_cast<void>(image->rgba());
                  limitDescriptors(old);
                  const bool isRightOrEmpty =
                      (text.empty() || text == "Продолжить") && (age.empty() || age == "\u0662\u0665 лет");
                  const bool isRightLater = Texts::continue_() == "Продолжить" &&
                                            Lumora::Localization::legacyTrAge(25) == "\u0662\u0665 лет" &&
                                            Lumora::UIImage::assetNamed("send").value().rgba() != nullptr;
                  return !isRightOrEmpty ? 1 : !isRightLater ? 2 : 0;
              }),
              0);
}

// root can read everything, so the test reads as another user.
TEST(Files, UnreadableFilesAreMissing) {
    const Support::TemporaryFolder folder;
    folder.write("open.bundle/Base.lproj/T.strings", "a = text;");
    folder.write("closed.bundle/Base.lproj/T.strings", "a = text;");
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(folder / "closed.bundle", fs::perms::none);
    fs::permissions(folder / "open.bundle/Base.lproj/T.strings", fs::perms::none);
    EXPECT_EQ(Child::exitOf([&] {
                  if (::geteuid() == 0 && ::setuid(65534) != 0) // nobody
                      return 2;
                  if (text(folder / "open.bundle") != "a" || text(folder / "closed.bundle") != "a")
                      return 1;
                  const std::string closed = folder / "closed.bundle";
                  const auto damage = NSBundle::bundleWithPath(closed).tableDamage("T");
                  return damage == closed + ": cannot be read: Permission denied" ? 0 : 3;
              }),
              0);
    fs::permissions(folder / "closed.bundle", fs::perms::owner_all);
}

TEST(Files, NoBundleGivesKeysAndNoAssets) {
    const NSBundle& none = NSBundle::bundleWithPath("/nowhere/None.bundle");
    EXPECT_EQ(none.localizedStringForKey("a", nullptr, "T"), "a");
    EXPECT_EQ(none.tableDamage("T"), "/nowhere/None.bundle: cannot be read: No such file or directory");
    EXPECT_TRUE(none.localizations().empty());
    EXPECT_FALSE(UIKit::UIImage::imageNamed("send", none));
    EXPECT_FALSE(UIKit::NSDataAsset::assetWithName("send", none));
}

TEST(Files, HalfATableIsMissing) {
    const Support::TemporaryFolder folder;
    folder.write("B.bundle/Base.lproj/T.strings", "a = text; b = \"ha");
    folder.write("B.bundle/Base.lproj/U.strings", "a = text;");
    EXPECT_EQ(text(folder / "B.bundle"), "a");
    EXPECT_EQ(text(folder / "B.bundle", "a", "U"), "text");
}

// While one thread replaces the bundle atomically, as a compile does, another opens it and sees either the old or the
// new one, complete.
TEST(Files, AnUpgradeByRenamingIsSafe) {
    const Support::TemporaryFolder folder;
    const auto write = [&](const char* bundle, char version) {
        folder.write(std::string(bundle) + "/Base.lproj/T.strings", "a = \"" + std::string(5000, version) + "\";");
    };
    write("B.bundle", '0');
    std::atomic<bool> ends{false};
    std::size_t wrong = 0, looks = 0;
    std::thread reader([&] {
        for (; !ends; ++looks) {
            // Bundles keep what they have read, so each iteration uses another spelling of the path.
            std::string path = folder / "B.bundle";
            for (std::size_t rest = looks; rest != 0; rest /= 2)
                path += rest % 2 != 0 ? "/." : "/";
            const std::string found = text(path);
            wrong += found != std::string(5000, '0') && found != std::string(5000, '1') ? 1U : 0U;
        }
    });
    const std::string place = folder / "B.bundle", made = folder / "New.bundle";
    for (int i = 1; i <= 300; ++i) {
        write("New.bundle", i % 2 == 0 ? '0' : '1');
        ASSERT_EQ(::renameat2(AT_FDCWD, made.c_str(), AT_FDCWD, place.c_str(), RENAME_EXCHANGE), 0);
        fs::remove_all(made); // now the old bundle
    }
    ends = true;
    reader.join();
    EXPECT_EQ(wrong, 0U) << "of " << looks;
    EXPECT_GT(looks, 0U);
}

// A picture whose catalog is truncated in place is damaged; pictures that were read before stay.
TEST(Files, ACatalogTruncatedInPlaceIsDamaged) {
    const Support::TemporaryFolder folder;
    const fs::path bundle = folder / "B.bundle";
    fs::create_directory(bundle);
    fs::copy_file(Lumora::LumoraResources::bundle().bundlePath() + "/Assets.catalog", bundle / "Assets.catalog");
    const NSBundle& cut = NSBundle::bundleWithPath(bundle.string());
    const auto seen = UIKit::UIImage::imageNamed("send", cut), unseen = UIKit::UIImage::imageNamed("icon_month", cut);
    ASSERT_TRUE(seen && unseen);
    ASSERT_TRUE(seen->rgba());
    fs::resize_file(bundle / "Assets.catalog", 0);
    EXPECT_TRUE(seen->rgba());
    EXPECT_GT(unseen->pixelWidth(), 0U);
    EXPECT_FALSE(unseen->rgba());
}

// A program may wrongly close our descriptors and reuse their numbers for other files.
TEST(Files, ClosedDescriptorsDamagePicturesOnly) {
    EXPECT_EQ(Child::exitOf([] {
                  Foundation::Host::setPreferredLanguages({"ru"});
                  const bool hasPicture = Assets::Images::send.image().rgba() != nullptr;
                  ::close_range(3, ~0U, 0);
                  while (::open("/dev/zero", O_RDONLY) < 64) {
                  }
                  const auto unseen = UIKit::UIImage::imageNamed("icon_month", Lumora::LumoraResources::bundle());
                  const bool isDamaged = unseen && unseen->rgba() == nullptr;
                  return hasPicture && isDamaged && Texts::continue_() == "Продолжить" ? 0 : 1;
              }),
              0);
}

} // namespace
