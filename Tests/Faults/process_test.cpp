// Many threads at the first use, a process that forks.
#include <Lumora/Lumora.h>

#include "Child.h"
#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <vector>

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;
using Lumora::Localization;

bool readsAll() {
    return Texts::continue_() == "Продолжить" && Localization::legacyTrNumber(12.5, false) == "12,5" &&
           Localization::legacyTrYear(25) == "25 лет" && Lumora::LumoraAsset::Images::send.image().rgba() != nullptr;
}

void useRussian() {
    Foundation::Host::setPreferredLanguages({"ru"});
    Foundation::Host::setCurrentLocale("ru_RU");
}

TEST(Process, SixteenThreadsAtTheFirstUse) {
    EXPECT_EQ(Child::exitOf([] {
                  useRussian();
                  constexpr int count = 16;
                  std::latch start(count);
                  std::vector<const std::string*> texts(count);
                  std::vector<char> right(count);
                  std::vector<std::thread> threads;
                  for (std::size_t i = 0; i < count; ++i)
                      threads.emplace_back([&, i] {
                          start.arrive_and_wait();
                          texts[i] = &Texts::continue_();
                          right[i] = readsAll();
                      });
                  for (std::thread& thread : threads)
                      thread.join();
                  for (std::size_t i = 0; i < count; ++i)
                      if (texts[i] != texts[0] || right[i] == 0)
                          return 1;
                  return 0;
              }),
              0);
}

TEST(Process, AChildReadsWhatItsParentHasReadAndWhatNot) {
    EXPECT_EQ(Child::exitOf([] {
                  useRussian();
                  if (Texts::continue_() != "Продолжить")
                      return 1;
                  return Child::exitOf([] { return readsAll() && !Texts::Diet::allDish().empty() ? 0 : 2; });
              }),
              0);
}

} // namespace
