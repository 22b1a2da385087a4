// First use by many threads, and forked processes.
#include <Foundation/Host.h>
#include <Foundation/NSNumberFormatter.h>
#include <Lumora/Lumora.h>

#include "Child.h"
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <latch>
#include <sys/time.h>
#include <thread>
#include <ucontext.h>
#include <unistd.h>
#include <vector>

namespace {

namespace Texts = Lumora::LumoraStrings::Localizable;
using Lumora::Localization;

// Whether a text, a number, a year phrase and a picture are right.
bool readsAll() {
    return Texts::continue_() == "Продолжить" && Localization::legacyTrNumber(12.5, false) == "12,5" &&
           Localization::legacyTrYear(25) == "25 лет" && Lumora::LumoraAsset::Images::send.image().rgba() != nullptr;
}

void useRussian() {
    Foundation::Host::setPreferredLanguages({"ru"});
    Foundation::Host::setCurrentLocale("ru_RU");
}

TEST(Process, SixteenThreadsAtTheFirstUse) {
    EXPECT_EQ(Child::firstFailure([](int) {
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

TEST(Process, AChildReadsOldAndNewTexts) {
    EXPECT_EQ(Child::firstFailure([](int) {
                  useRussian();
                  if (Texts::continue_() != "Продолжить")
                      return 1;
                  return Child::exitOf([] { return readsAll() && !Texts::Diet::allDish().empty() ? 0 : 2; });
              }),
              0);
}

// Forks while another thread is working.
class Fork : public testing::Test {
protected:
    void SetUp() override {
#ifdef __SANITIZE_THREAD__
        GTEST_SKIP() << "the thread sanitizer's allocator is locked in the child if another thread was allocating";
#endif
    }
};

// Runs `work` repeatedly on another thread until destroyed.
class Busy {
public:
    template <class Work>
    explicit Busy(Work work)
        : thread_([this, work] {
              while (!ends_)
                  work();
          }) {}
    ~Busy() {
        ends_ = true;
        thread_.join();
    }

private:
    std::atomic<bool> ends_{false};
    std::thread thread_;
};

// limitTime() ends the process that calls it, a forked child, after ten seconds.
#if defined(__SANITIZE_ADDRESS__) && defined(__x86_64__)
// With one exception: if another thread was allocating at the fork, the sanitizer's allocator is locked in the child. A
// child that waits there for a second ends without an error: the wait is not ours, and the release build runs the same
// test without the sanitizer.
dl_find_object sanitizer{}; // where its code is loaded

void tick(int, siginfo_t*, void* context) {
    static int ticks = 0, inSanitizer = 0;
    const greg_t at = static_cast<const ucontext_t*>(context)->uc_mcontext.gregs[REG_RIP];
    const bool isInSanitizer = at >= reinterpret_cast<greg_t>(sanitizer.dlfo_map_start) &&
                               at < reinterpret_cast<greg_t>(sanitizer.dlfo_map_end);
    inSanitizer = isInSanitizer ? inSanitizer + 1 : 0;
    if (inSanitizer == 5)
        ::_exit(0);
    if (++ticks == 50) {
        ::signal(SIGALRM, SIG_DFL);
        ::raise(SIGALRM);
    }
}

void limitTime() {
    if (::_dl_find_object(reinterpret_cast<void*>(&::malloc), &sanitizer) != 0)
        ::_exit(1);
    struct sigaction action {};
    action.sa_sigaction = tick;
    action.sa_flags = SA_SIGINFO | SA_RESTART | SA_NODEFER; // NODEFER: tick() raises the signal
    ::sigaction(SIGALRM, &action, nullptr);
    const timeval often{.tv_sec = 0, .tv_usec = 200'000};
    const itimerval timer{.it_interval = often, .it_value = often};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}
#else
void limitTime() {
    ::alarm(10);
}
#endif

// Sets the languages and the locale, and reads; 0 if all is right.
int useAll() {
    limitTime();
    useRussian();
    return readsAll() && Foundation::Locale::current().identifier() == "ru_RU" ? 0 : 1;
}

// The child must not wait for a lock of the working thread.
TEST_F(Fork, DuringWorkLeavesAChildThatReadsAndSetsAll) {
    const struct {
        int line;
        void (*work)();
    } cases[] = {
        {__LINE__,
         [] {
             Foundation::Host::setPreferredLanguages({"de", "fr"});
         }},
        {__LINE__, [] { Foundation::Host::setCurrentLocale("de_AT"); }},
        {__LINE__, [] { Foundation::Host::reset(); }},
        {__LINE__, [] { static_cast<void>(Lumora::LumoraAsset::Images::send.image().rgba()); }},
        {__LINE__,
         [] { // calls ICU each time, because patterns of so long an identifier are not kept
             Foundation::NSNumberFormatter formatter;
             formatter.setLocale(Foundation::Locale(std::string(200, 'x') + "@numbers=arab"));
             static_cast<void>(formatter.stringFromNumber(5));
         }},
    };
    for (const auto& [line, work] : cases) {
        const Busy busy(work);
        for (int i = 0; i < 200; ++i)
            ASSERT_EQ(Child::exitOf(useAll), 0) << "line " << line << ", repetition " << i;
    }
}

TEST_F(Fork, DuringAFirstReadLeavesAChildThatReadsAll) {
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(Child::exitOf([i] {
                      useRussian();
                      std::latch start(2), forked(1);
                      std::thread reader([&] {
                          start.arrive_and_wait();
                          readsAll();
                          forked.wait(); // so that the thread exists at the fork
                      });
                      start.arrive_and_wait();
                      ::usleep(static_cast<useconds_t>(i * 20)); // vary the moment of the fork
                      const int code = Child::exitOf(useAll);
                      forked.count_down();
                      reader.join();
                      return code;
                  }),
                  0)
            << "repetition " << i;
}

} // namespace
