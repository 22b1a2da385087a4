#include "Runtime/internal/File.h"

#include "../Support/TemporaryFolder.h"
#include "Runtime/internal/Descriptor.h"
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

TEST(File, ReadsRegularFilesOnly) {
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

    // A symbolic link stays, and its target is written.
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
    // No temporary file is left.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 3);
}

TEST(File, CreatesTheTargetOfALink) {
    const Support::TemporaryFolder folder;
    std::filesystem::create_symlink("second", folder / "first");
    std::filesystem::create_symlink(folder / "not there", folder / "second");
    ASSERT_TRUE(Runtime::writeFile(folder / "first", "made"));
    EXPECT_EQ(Support::contents(folder / "not there"), "made");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "first") && std::filesystem::is_symlink(folder / "second"));

    std::filesystem::create_symlink("round", folder / "round");
    EXPECT_EQ(Runtime::writeFile(folder / "round", "x").error().text(),
              (folder / "round").string() + ": cannot be written: Too many levels of symbolic links");
}

TEST(File, WritesAtTheOffsetOfAnOpenDescriptor) {
    const Support::TemporaryFolder folder;
    for (const int append : {0, O_APPEND}) {
        const std::string file = folder.write("log", append == 0 ? "" : "earlier ");
        const Runtime::Descriptor open(::open(file.c_str(), O_WRONLY | O_CLOEXEC | append));
        const std::string number = std::to_string(open.number());
        ASSERT_EQ(::write(open.number(), "before ", 7), 7);
        const std::string link = folder / ("link" + std::to_string(append));
        std::filesystem::create_symlink("/proc/self/fd/" + number, link);
        for (const std::string& path :
             {link, "/dev/fd/" + number, "/proc/" + std::to_string(::getpid()) + "/fd/" + number})
            ASSERT_TRUE(Runtime::writeFile(path, "x")) << path;
        ASSERT_EQ(::write(open.number(), " after", 6), 6);
        EXPECT_EQ(Support::contents(file), (append == 0 ? "" : "earlier ") + std::string("before xxx after"));
        EXPECT_TRUE(std::filesystem::is_symlink(link));
    }
    const Runtime::Descriptor readOnly(::open((folder / "log").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(Runtime::writeFile("/dev/fd/" + std::to_string(readOnly.number()), "x"));
    EXPECT_FALSE(Runtime::writeFile("/dev/fd/999999", "x"));
}

} // namespace
