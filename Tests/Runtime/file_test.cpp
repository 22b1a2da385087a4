#include "Runtime/File.h"

#include "../Support/TemporaryFolder.h"
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

TEST(File, ReadsWhatIsThereAndRefusesTheRest) {
    const Support::TemporaryFolder folder;
    const std::string file = folder.write("a", std::string("x\0y", 3));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);

    EXPECT_EQ(*Runtime::readFile(file, 3), std::string("x\0y", 3));
    EXPECT_EQ(Runtime::readFile(file, 2).error().text(), file + ": is larger than 2 bytes");
    EXPECT_EQ(Runtime::readFile(folder.path(), 9).error().message, "is not a regular file");
    EXPECT_EQ(Runtime::readFile(folder / "pipe", 9).error().message, "is not a regular file");
    EXPECT_EQ(Runtime::readFile(folder / "none", 9).error().message, "cannot be read: No such file or directory");
}

TEST(File, WritesWholeOrNotAtAll) {
    const Support::TemporaryFolder folder;
    const std::string file = folder.write("a", "old");
    ASSERT_TRUE(Runtime::writeFile(file, "new text"));
    EXPECT_EQ(Support::contents(file), "new text");

    // A link stays one, and what it leads to is written.
    std::filesystem::create_symlink("a", folder / "link");
    ASSERT_TRUE(Runtime::writeFile(folder / "link", "by the link"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(Support::contents(file), "by the link");
    ASSERT_TRUE(Runtime::writeFile("/dev/null", "x"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));

    const std::string nowhere = folder / "none" / "a";
    EXPECT_EQ(Runtime::writeFile(nowhere, "x").error().text(),
              nowhere + ": cannot be written: No such file or directory");
    std::filesystem::create_directory(folder / "in the way");
    EXPECT_FALSE(Runtime::writeFile(folder / "in the way", "x"));
    // No temporary stays behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 3);
}

} // namespace
