#include "Runtime/Class.h"

#include <gtest/gtest.h>

namespace {

std::string greeting(const std::string& name, std::int64_t times, double factor, bool loud) {
    return name + " " + std::to_string(times) + " " + std::to_string(factor) + (loud ? "!" : ".");
}
std::vector<std::string> names() {
    return {"a", "b"};
}
bool isOpen() {
    return true;
}

constexpr Runtime::Message properties[] = {Runtime::message<&names>("names"), Runtime::message<&isOpen>("isOpen")};
constexpr Runtime::Message methods[] = {Runtime::message<&greeting>("greet:times:factor:loud:")};
constexpr Runtime::Class door("Test.Door", properties, methods);
LUMORA_PUBLISH_CLASS(door);

TEST(Class, IsFoundByItsExactName) {
    EXPECT_EQ(Runtime::classNamed("Test.Door"), &door);
    EXPECT_EQ(Runtime::classNamed("Door"), nullptr);
    EXPECT_EQ(Runtime::classNamed("test.door"), nullptr);
    EXPECT_EQ(Runtime::classNamed(""), nullptr);
}

TEST(Class, ListsItsMessagesInOrder) {
    EXPECT_EQ(door.classProperties(), (std::vector<std::string>{"names", "isOpen"}));
    EXPECT_EQ(door.classMethods(), (std::vector<std::string>{"greet:times:factor:loud:"}));
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
    EXPECT_TRUE(Runtime::send<bool>(&door, "isOpen"));
}

TEST(ClassDeathTest, StopsWithAReportThatNamesClassAndSelector) {
    EXPECT_DEATH(Runtime::send<bool>(&door, "isShut"), "Fatal error: Test.Door does not respond to \"isShut\"");
    EXPECT_DEATH(Runtime::send<bool>(nullptr, "isOpen"), "An unknown class was sent \"isOpen\"");
    EXPECT_DEATH(Runtime::send<bool>(&door, "isOpen", 1),
                 "Test.Door was sent arguments of other types with \"isOpen\"");
    EXPECT_DEATH(Runtime::send<std::string>(&door, "isOpen"), "returns a result of another type for \"isOpen\"");
    EXPECT_DEATH(Runtime::send<std::string>(&door, "greet:times:factor:loud:", "Ann", 3, 1, true),
                 "arguments of other types");
}

} // namespace
