// No memory: each allocation on the way of a first read fails once, and all from it on fail.
#include <Lumora/Loc.h>
#include <Lumora/Lumora.h>

#include "Child.h"
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <new>
#include <optional>
#include <vector>

namespace {

constexpr long never = std::numeric_limits<long>::max();
long before = never;  // allocations that succeed before one fails
bool failsOn = false; // and all after it
bool hasFailed = false;

bool fails() noexcept {
    if (before == never || before-- > 0)
        return false;
    hasFailed = true;
    before = failsOn ? 0 : never;
    return true;
}

} // namespace

// GCC takes the pair for mismatched where it sees through one of them only.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
    void* memory = fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

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

struct Case {
    const char* name;
    std::string (*read)();
    const char* otherwise = ""; // besides the right text
};
const Case cases[] = {
    {"plain", [] { return Texts::continue_(); }},
    {"formatted",
     [] {
         return Texts::DeleteAccount::activeSubscriptionServer(std::vector<int>{1, 2});
     }},
    {"phrase", [] { return Texts::locYears(25); }, "25 "}, // without its noun
    {"number", [] { return Localization::legacyTrNumber(-1234567.5, true); }},
    {"percent", [] { return Localization::legacyTrPercent(0.25, true); }},
    {"year", [] { return Localization::legacyTrYear(25); }},
    {"age", [] { return Localization::legacyTrAge(25); }},
    {"one language", [] { return Localization::localizationFileTranslation("ja", "Continue"); }},
    {"by key", [] { return Localization::legacyTr("Continue"); }},
    {"language", [] { return Localization::currentLanguageCode().rawValue(); }, "en"},
    {"languages", [] { return joined(Localization::allSupportedLocalizations()); }},
    {"C", [] { return taken(LocPercent(0.5)); }},
};

// The reading where its (n+1)-th allocation fails: 0 when it went as it must, 1 when none failed any more.
int attempt(const Case& one, long n, bool on) {
    Foundation::Host::setPreferredLanguages({"ru"});
    std::optional<std::string> first;
    failsOn = on;
    before = n;
    // What the test itself takes for its arguments and answers may throw; what the library gives never does.
    try {
        first.emplace(one.read());
    } catch (const std::bad_alloc&) {
    }
    before = never;
    const std::string again = one.read();
    if (again.empty() || again != one.read())
        return 2; // with memory back the text must be right
    if (first && !first->empty() && *first != again && *first != one.otherwise)
        return 3;
    return hasFailed ? 0 : 1;
}

TEST(NoMemory, GivesNoTextAndKeepsNothing) {
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

} // namespace
