#include "Runtime/Class.h"

#include "Runtime/internal/ElfNotes.h"
#include <atomic>
#include <bit>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

std::string greeting(const std::string& name, std::int64_t times, double factor, bool loud) {
    return name + " " + std::to_string(times) + " " + std::to_string(factor) + (loud ? "!" : ".");
}
std::string size(std::string_view text) noexcept {
    return std::to_string(text.size());
}
const std::vector<std::string>& names() {
    static const std::vector<std::string> both = {"a", "b"};
    return both;
}
bool isOpen() {
    return true;
}

constexpr Runtime::Method properties[] = {Runtime::method<&names>("names"), Runtime::method<&isOpen>("isOpen")};
constexpr Runtime::Method methods[] = {Runtime::method<&greeting>("greet:times:factor:loud:"),
                                       Runtime::method<&size>("sizeOf:")};
constexpr Runtime::Class door("Test.Door", properties, methods);
LUMORA_PUBLISH_CLASS(door);

TEST(Class, IsFoundByItsExactName) {
    EXPECT_EQ(Runtime::classNamed("Test.Door"), &door);
    EXPECT_EQ(Runtime::classNamed("Door"), nullptr);
    EXPECT_EQ(Runtime::classNamed("test.door"), nullptr);
    EXPECT_EQ(Runtime::classNamed(""), nullptr);
}

// A name that no class has is searched in all libraries, even in one that is being loaded.
TEST(Class, IsSearchedWhileAnotherThreadLoadsLibraries) {
    std::atomic<bool> isDone = false;
    std::thread loader([&isDone] {
        for (int i = 0; i < 1000; ++i)
            if (void* const library = ::dlopen(LOADED_CLASS, RTLD_NOW); library == nullptr || ::dlclose(library) != 0)
                ADD_FAILURE() << ::dlerror();
        isDone = true;
    });
    while (!isDone)
        EXPECT_EQ(Runtime::classNamed("Test.None"), nullptr);
    loader.join();
}

TEST(Class, ListsItsSelectorsInOrder) {
    EXPECT_EQ(door.classProperties(), (std::vector<std::string>{"names", "isOpen"}));
    EXPECT_EQ(door.classMethods(), (std::vector<std::string>{"greet:times:factor:loud:", "sizeOf:"}));
}

TEST(ElfNotes, AreReadUpToTheEndOfTheirSegment) {
    const auto note = [](ElfW(Word) ownerSize, ElfW(Word) contentSize, const char* bytes) {
        const ElfW(Nhdr) header = {.n_namesz = ownerSize, .n_descsz = contentSize, .n_type = 7};
        return std::string(reinterpret_cast<const char*>(&header), sizeof header) + bytes;
    };
    const std::string first = note(2, 5, "us--12345---"); // with '-' as padding
    const std::pair<std::string, std::string> cases[] = {
        {first + note(2, 3, "us--678"), "12345 678 "}, // the last note without padding
        {first + note(2, 4, "us--678"), "12345 "},     // content beyond the end
        {first + note(9, 0, "us--"), "12345 "},        // owner beyond the end
        {first + note(0xFFFFFFFF, 0xFFFFFFFF, "us--"), "12345 "},
        {first + "header", "12345 "}}; // half a header
    for (const auto& [bytes, expected] : cases) {
        ElfW(Phdr) segment{};
        segment.p_type = PT_NOTE;
        segment.p_vaddr = std::bit_cast<ElfW(Addr)>(bytes.data());
        segment.p_memsz = bytes.size();
        segment.p_align = 4;
        dl_phdr_info object{};
        object.dlpi_phdr = &segment;
        object.dlpi_phnum = 1;
        std::string found;
        const bool stopped = Runtime::visitNotes(object, [&](const Runtime::ElfNote& one) {
            found.append(one.owner == "us" && one.type == 7 ? one.content : "?") += ' ';
            return false;
        });
        EXPECT_EQ(found, expected);
        EXPECT_FALSE(stopped);
    }
}

TEST(Class, PassesArgumentsOfEveryWidth) {
    const char* selector = "greet:times:factor:loud:";
    EXPECT_EQ(Runtime::send<std::string>(&door, selector, "Ann", 3, 0.5F, true), "Ann 3 0.500000!");
    EXPECT_EQ(Runtime::send<std::string>(&door, selector, std::string_view("Bo"), std::uint8_t{200}, 2.0, false),
              "Bo 200 2.000000.");
    EXPECT_EQ(Runtime::send<std::string>(&door, selector, static_cast<const char*>(nullptr), 1, 1.0, true),
              " 1 1.000000!");
    EXPECT_EQ(Runtime::send<std::string>(&door, selector, nullptr, 1, 1.0, true), " 1 1.000000!");
    EXPECT_EQ(Runtime::send<std::vector<std::string>>(&door, "names"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(Runtime::send<std::string>(&door, "sizeOf:", "four"), "4");
    EXPECT_TRUE(Runtime::send<bool>(&door, "isOpen"));
}

TEST(ClassDeathTest, StopsWithAReportThatNamesClassAndSelector) {
    EXPECT_DEATH(Runtime::send<bool>(&door, "isShut"), "Fatal error: Test.Door does not respond to \"isShut\"");
    EXPECT_DEATH(Runtime::send<bool>(nullptr, "isOpen"), "An unknown class was sent \"isOpen\"");
    EXPECT_DEATH(Runtime::send<bool>(&door, "isOpen", 1),
                 "Test.Door was sent arguments of the wrong types or number with \"isOpen\"");
    EXPECT_DEATH(Runtime::send<std::string>(&door, "isOpen"), "does not return the expected type for \"isOpen\"");
    EXPECT_DEATH(Runtime::send<std::string>(&door, "greet:times:factor:loud:", "Ann", 3, 1, true),
                 "arguments of the wrong types");
}

} // namespace
