// Out of memory: one allocation of a first read fails, or it and all later ones. That is tried for each of the first
// Child::repetitions allocations and for every seventh after them.
#include <Lumora/Loc.h>
#include <Lumora/Lumora.h>
#include <Runtime/Class.h>

#include "../Support/AddressSpaceLimit.h"
#include "../Support/TemporaryFolder.h"
#include "Child.h"
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <limits>
#include <link.h>
#include <new>
#include <optional>
#include <sys/resource.h>
#include <vector>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace {

constexpr long never = std::numeric_limits<long>::max();
long untilFailure = never;  // number of allocations before the failing one
bool laterOnesFail = false; // all allocations after the failing one
bool hasFailed = false;

bool isOfIcu(void* code) noexcept {
    dl_find_object found{};
    return ::_dl_find_object(code, &found) == 0 && std::strstr(found.dlfo_link_map->l_name, "libicu") != nullptr;
}

// ICU's own allocations do not fail: without memory its initialization deadlocks.
bool fails(void* caller = nullptr) noexcept {
    if (untilFailure == never || isOfIcu(caller) || untilFailure-- > 0)
        return false;
    hasFailed = true;
    untilFailure = laterOnesFail ? 0 : never;
    return true;
}

[[maybe_unused]] void* refused() noexcept {
    errno = ENOMEM;
    return nullptr;
}

} // namespace

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The sanitizer replaces malloc itself. GCC reports a mismatch where it inlines only one of new and delete.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
    void* memory = fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
#else
// Replaces malloc, so that allocations of the XML parser and the dynamic linker fail, too.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): glibc's own names
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

void* malloc(std::size_t size) {
    return fails(__builtin_return_address(0)) ? refused() : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    return fails(__builtin_return_address(0)) ? refused() : __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
    return fails(__builtin_return_address(0)) ? refused() : __libc_realloc(memory, size);
}
}
#endif

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;
using Lumora::Localization;

// The text of an NSString, which is released.
std::string taken(NSString* text) {
    std::string out = text == nullptr ? "" : NSStringUTF8(text);
    NSRelease(text);
    return out;
}

std::string joined(const std::vector<std::string>& list) {
    std::string all;
    for (const std::string& one : list)
        all += one;
    return all;
}

std::string xmlBundle; // the path of a bundle with an XML table

void writeXmlBundle(const Support::TemporaryFolder& folder) {
    xmlBundle = folder.path();
    folder.write("en.lproj/Localizable.strings", "<plist><dict><key>Continue</key><string>Weiter</string>"
                                                 "<key>Number</key><integer>1</integer></dict></plist>");
}

std::string xmlText() {
    return std::string(Foundation::NSBundle::bundleWithPath(xmlBundle).localizedText("Continue", "Localizable"));
}

const std::string longText(100, 'a');

struct Case {
    const char* name;
    std::string (*read)();
    const char* otherwise = "";  // what the first read may give instead of the right text
    const char* right = nullptr; // what later reads must give, where a degraded text might have been cached
};
const Case cases[] = {
    {"plain", [] { return Texts::continue_(); }},
    {"formatted",
     [] {
         return Texts::DeleteAccount::activeSubscriptionServer(std::vector<int>{1, 2});
     }},
    {"phrase", [] { return Texts::locYears(25); }, "25 "}, // the noun may be missing
    {"number",
     [] {
         Foundation::Host::setCurrentLocale("en_RU@numbers=arab"); // not among the precomputed locales
         return Localization::legacyTrNumber(25, true);
     },
     "", "\u061C+\u0662\u0665"},
    {"percent", [] { return Localization::legacyTrPercent(0.25, true); }},
    {"year", [] { return Localization::legacyTrYear(25); }},
    {"age", [] { return Localization::legacyTrAge(25); }},
    {"one language", [] { return Localization::localizationFileTranslation("ja", "Continue"); }},
    {"by key", [] { return Localization::legacyTr("Continue"); }},
    {"language", [] { return Localization::currentLanguageCode().rawValue(); }, "en"},
    {"matched language",
     [] {
         Foundation::Host::setPreferredLanguages({"es-MX"});
         return Localization::currentLanguageCode().rawValue();
     },
     "en", "es-419"},
    {"languages", [] { return joined(Localization::allSupportedLocalizations()); }},
    {"C", [] { return taken(LocPercent(0.5)); }},
    {"C text", [] { return taken(NSStringCreate(longText.c_str())); }},
    {"XML table", xmlText, "", "Weiter"},
    // Not a JPEG: without memory for the thread-local data of its decoder, the C library stops the process.
    {"PNG",
     [] { return std::string(Lumora::LumoraAsset::Images::send.image().rgba() == nullptr ? "none" : "decoded"); },
     "none", "decoded"},
    {"data", [] { return std::to_string(Lumora::LumoraAsset::Onboarding::countryRegions.data().data().size()); }},
};

// Checking for leaks is slow, so do it only after some of the failures.
bool leaks([[maybe_unused]] long n) {
#ifdef __SANITIZE_ADDRESS__
    return n % 25 == 1 && __lsan_do_recoverable_leak_check() != 0;
#else
    return false;
#endif
}

// Runs the case with its (n+1)-th allocation failing. Returns 0 when the result is correct, 1 when no allocation failed
// because there were fewer, another number for a fault.
int attempt(const Case& one, long n, bool laterToo) {
    Foundation::Host::setPreferredLanguages({"ru"});
    std::optional<std::string> first;
    laterOnesFail = laterToo;
    untilFailure = n;
    // Allocations of the test itself may throw, and so may NSBundle and pictures; accessors of texts do not.
    try {
        first.emplace(one.read());
    } catch (const std::exception&) {
    }
    untilFailure = never;
    const std::string again = one.read();
    if (again.empty() || again != one.read() || (one.right != nullptr && again != one.right))
        return 2; // with memory available again the text must be right
    if (first && !first->empty() && *first != again && *first != one.otherwise)
        return 3;
    if (leaks(n))
        return 4;
    return hasFailed ? 0 : 1;
}

TEST(NoMemory, CachesNothing) {
    const Support::TemporaryFolder folder;
    writeXmlBundle(folder);
    for (const bool laterToo : {false, true})
        for (const Case& one : cases) {
            // Each child lets a later allocation fail, until there are none. A read with few allocations is repeated.
            for (int children = 0, code = 0; children < Child::repetitions && code <= 1;) {
                long n = 0;
                for (; (code = Child::exitOf([&] { return attempt(one, n, laterToo); })) == 0; ++children)
                    n += n < Child::repetitions ? 1 : 7; // later allocations are alike, one for each entry
                EXPECT_EQ(code, 1) << one.name << ", allocation " << n << (laterToo ? " and all after it" : "");
                ASSERT_GT(n, 2) << one.name;
            }
        }
}

TEST(NoMemory, APlainReadNeverThrows) {
    EXPECT_EQ(Child::exitOf([] {
                  laterOnesFail = true;
                  untilFailure = 0;
                  const std::string& text = Texts::continue_();
                  const bool isEmpty = text.empty() && &text == &Texts::continue_();
                  untilFailure = never;
                  return isEmpty && !Texts::continue_().empty() ? 0 : 1;
              }),
              0);
}

// At the first read the address space is too small for all or some of the libraries that it loads: mappings fail,
// allocations may succeed. With more space the result is right.
TEST(NoMemory, LackOfAddressSpaceIsNotCached) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs all addresses";
#endif
    const struct {
        int line;
        std::string (*read)();
        const char* right;
    } reads[] = {
        {__LINE__, [] { return Localization::legacyTrYear(25); }, "\u0662\u0665 лет"},
        {__LINE__, [] { return Localization::legacyTrNumber(25, false); }, "\u0662\u0665"},
        {__LINE__, [] { return Texts::continue_(); }, "Продолжить"},
        {__LINE__, [] { return std::to_string(Lumora::LumoraAsset::Images::send.image().rgba() != nullptr ? 1 : 0); },
         "1"},
        {__LINE__, xmlText, "Weiter"},
    };
    const Support::TemporaryFolder folder;
    writeXmlBundle(folder);
    for (const auto& one : reads)
        for (rlim_t room = 0, repetition = 0; repetition < Child::repetitions; ++repetition) {
            room += room < (rlim_t{8} << 20) ? 80'000 : 560'000; // up to about 60 MB
            ASSERT_EQ(Child::exitOf([&] {
                          Foundation::Host::setPreferredLanguages({"ru"});
                          Foundation::Host::setCurrentLocale("ru_RU@numbers=arab");
                          static_cast<void>(Lumora::LumoraResources::bundle());
                          try { // pictures and allocations of the test may throw
                              const Support::AddressSpaceLimit limit(room);
                              static_cast<void>(one.read());
                          } catch (const std::exception&) {
                          }
                          return one.read() == one.right ? 0 : 1;
                      }),
                      0)
                << "line " << one.line << ", " << room << " bytes";
        }
}

TEST(NoMemory, ADescriptionIsEmpty) {
    EXPECT_EQ(Child::exitOf([] {
                  const std::vector<std::string> list = {longText, longText};
                  const std::vector<std::vector<std::string>> lists = {list, list};
                  laterOnesFail = true;
                  for (const long n : {0, 1, 2, 3}) {
                      untilFailure = n;
                      if (!Foundation::Describable(lists).text().empty())
                          return 1;
                  }
                  return 0;
              }),
              0);
}

TEST(NoMemory, AReportIsWritten) {
    EXPECT_EXIT(
        {
            laterOnesFail = true;
            untilFailure = 0;
            Runtime::send<std::string>(Runtime::classNamed("Lumora.Localization"), "noSuchMessage");
        },
        testing::KilledBySignal(SIGABRT), "Fatal error: Lumora.Localization does not respond to \"noSuchMessage\"");
}

} // namespace
