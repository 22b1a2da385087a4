// A long-running process that serves many users.
#include <Foundation/Host.h>
#include <Foundation/NSBundle.h>
#include <Lumora/Lumora.h>

#include "../Support/TemporaryFolder.h"
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using Lumora::Localization;

long residentKilobytes() {
    long all = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * ::sysconf(_SC_PAGESIZE) / 1024;
}

// A server that sets each user's languages and locale needs bounded memory.
TEST(Users, AnyNumberNeedsBoundedMemory) {
    const Support::TemporaryFolder folder;
    folder.write("Base.lproj/T.strings", "a = text;");
    const Foundation::NSBundle& bundle = Foundation::NSBundle::bundleWithPath(folder.path());
    const auto serve = [&](int first, int last) {
        for (int user = first; user < last; ++user) {
            const std::string number = std::to_string(user);
            Foundation::Host::setPreferredLanguages({"de-x-user" + number, "de"});
            Foundation::Host::setCurrentLocale("de_DE@user=" + number);
            ASSERT_EQ(Localization::currentLanguageCode().rawValue(), "de");
            ASSERT_EQ(bundle.localizedText("a", "T"), "text");
            ASSERT_EQ(bundle.localizedText("a", "T" + number), "a");
        }
    };
    serve(0, 1000);
    const long before = residentKilobytes();
    serve(1000, 20000);
    EXPECT_LT(residentKilobytes() - before, 1024);
    Foundation::Host::reset();
}

} // namespace
