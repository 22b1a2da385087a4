// No memory: each allocation on the way of a first read fails once, and all from it on fail.
#include <Lumora/Loc.h>
#include <Lumora/Lumora.h>
#include <Runtime/Class.h>

#include "../Support/TemporaryFolder.h"
#include "Child.h"
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <link.h>
#include <new>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>
#include <vector>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace {

constexpr long never = std::numeric_limits<long>::max();
long before = never;  // allocations that succeed before one fails
bool failsOn = false; // and all after it
bool hasFailed = false;

bool isOfIcu(void* code) noexcept {
    dl_find_object found{};
    return ::_dl_find_object(code, &found) == 0 && std::strstr(found.dlfo_link_map->l_name, "libicu") != nullptr;
}

// ICU's own are spared: where its first steps find no memory it waits for itself for ever.
bool fails(void* caller = nullptr) noexcept {
    if (before == never || isOfIcu(caller) || before-- > 0)
        return false;
    hasFailed = true;
    before = failsOn ? 0 : never;
    return true;
}

[[maybe_unused]] void* refused() noexcept {
    errno = ENOMEM;
    return nullptr;
}

} // namespace

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The sanitizer has taken malloc.
// GCC takes the pair for mismatched where it sees through one of them only.
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
// All memory, that of the XML parser and of the dynamic linker too.
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
    const char* otherwise = "";  // besides the right text
    const char* right = nullptr; // where a poorer text might be kept
};
const Case cases[] = {
    {"plain", [] { return Texts::continue_(); }},
    {"formatted",
     [] {
         return Texts::DeleteAccount::activeSubscriptionServer(std::vector<int>{1, 2});
     }},
    {"phrase", [] { return Texts::locYears(25); }, "25 "}, // without its noun
    {"number",
     [] {
         Foundation::Host::setCurrentLocale("en_RU@numbers=arab"); // which the build has written nothing down of
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
};

// Looking for leaks takes long: after some of the failures only.
bool leaks([[maybe_unused]] long n) {
#ifdef __SANITIZE_ADDRESS__
    return n % 25 == 1 && __lsan_do_recoverable_leak_check() != 0;
#else
    return false;
#endif
}

// The reading where its (n+1)-th allocation fails: 0 when it went as it must, 1 when none failed any more.
int attempt(const Case& one, long n, bool on) {
    Foundation::Host::setPreferredLanguages({"ru"});
    std::optional<std::string> first;
    failsOn = on;
    before = n;
    // What the test itself takes for its answers may throw, and so may the platform below the module.
    try {
        first.emplace(one.read());
    } catch (const std::exception&) {
    }
    before = never;
    const std::string again = one.read();
    if (again.empty() || again != one.read() || (one.right != nullptr && again != one.right))
        return 2; // with memory back the text must be right
    if (first && !first->empty() && *first != again && *first != one.otherwise)
        return 3;
    return leaks(n) ? 4 : hasFailed ? 0 : 1;
}

TEST(NoMemory, GivesNoTextAndKeepsNothing) {
    const Support::TemporaryFolder folder;
    writeXmlBundle(folder);
    for (const bool on : {false, true})
        for (const Case& one : cases) {
            long n = 0;
            int code = 0;
            while ((code = Child::exitOf([&] { return attempt(one, n, on); })) == 0)
                n += n < 60 ? 1 : 7; // the readers take memory in the same way for each of many entries
            EXPECT_EQ(code, 1) << one.name << ", allocation " << n << (on ? " and all after it" : "");
            EXPECT_GT(n, 2) << one.name;
        }
}

// The library's own share of the above: a plain read throws nothing at all.
TEST(NoMemory, APlainReadNeverThrows) {
    EXPECT_EQ(Child::exitOf([] {
                  failsOn = true;
                  before = 0;
                  const std::string& text = Texts::continue_();
                  const bool isEmpty = text.empty() && &text == &Texts::continue_();
                  before = never;
                  return isEmpty && !Texts::continue_().empty() ? 0 : 1;
              }),
              0);
}

// Bytes of address space in use.
rlim_t addressSpace() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

// The address space is too small for the language data, or for some of it, at the first read: mappings fail,
// allocations may not. Once there is room the text is right.
TEST(NoMemory, TooLittleAddressSpaceIsNotRemembered) {
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
        for (rlim_t room = 0; room < (rlim_t{64} << 20); room += room < (rlim_t{4} << 20) ? 200'000 : 1'900'000)
            ASSERT_EQ(Child::exitOf([&] {
                          Foundation::Host::setPreferredLanguages({"ru"});
                          Foundation::Host::setCurrentLocale("ru_RU@numbers=arab");
                          static_cast<void>(Lumora::LumoraResources::bundle());
                          rlimit limit{};
                          ::getrlimit(RLIMIT_AS, &limit);
                          const rlim_t old = std::exchange(limit.rlim_cur, addressSpace() + room);
                          ::setrlimit(RLIMIT_AS, &limit);
                          std::optional<std::string> first;
                          try { // pictures and what the test itself takes may throw
                              first = one.read();
                          } catch (const std::exception&) {
                          }
                          limit.rlim_cur = old;
                          ::setrlimit(RLIMIT_AS, &limit);
                          return one.read() == one.right ? 0 : 1;
                      }),
                      0)
                << "line " << one.line << ", " << room << " bytes";
}

TEST(NoMemory, ADescriptionIsEmpty) {
    EXPECT_EQ(Child::exitOf([] {
                  const std::vector<std::string> list = {longText, longText};
                  const std::vector<std::vector<std::string>> lists = {list, list};
                  failsOn = true;
                  for (const long n : {0, 1, 2, 3}) {
                      before = n;
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
            failsOn = true;
            before = 0;
            Runtime::send<std::string>(Runtime::classNamed("Lumora.Localization"), "noSuchMessage");
        },
        testing::KilledBySignal(SIGABRT), "Fatal error: Lumora.Localization does not answer \"noSuchMessage\"");
}

} // namespace
