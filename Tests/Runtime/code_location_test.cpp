#include "Runtime/internal/CodeLocation.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

int inThisProgram = 0;

TEST(CodeLocation, KnowsTheProgramWhateverTheCurrentDirectory) {
    const std::filesystem::path self = std::filesystem::canonical("/proc/self/exe");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path("/");
    const Runtime::CodeLocation location = Runtime::codeLocation(&inThisProgram);
    std::filesystem::current_path(before);
    EXPECT_EQ(location.directory, self.parent_path());
    EXPECT_EQ(location.name, self.filename());
    EXPECT_TRUE(location.isMainProgram);
}

TEST(CodeLocation, KnowsASharedObject) {
    const Runtime::CodeLocation location = Runtime::codeLocation(reinterpret_cast<const void*>(&::getpid));
    EXPECT_TRUE(location.name.starts_with("libc")) << location.name;
    EXPECT_TRUE(location.directory.starts_with('/'));
    EXPECT_FALSE(location.isMainProgram);
}

TEST(CodeLocation, OfNoLoadedFileIsEmpty) {
    const int onTheStack = 0;
    EXPECT_EQ(Runtime::codeLocation(&onTheStack).directory, "");
}

} // namespace
