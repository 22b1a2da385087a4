#include "SwiftUI/AssetRecord.h"

#include "SampleBundle.h"
#include <gtest/gtest.h>
#include <thread>
#include <type_traits>

namespace {

struct Module {
    // Counts calls of bundle(): each lookup calls it once.
    static inline std::atomic<int> lookups = 0;
    static const Foundation::NSBundle& bundle() {
        ++lookups;
        return Sample::bundle();
    }
    static constexpr std::string_view sourceName = "TuistAssets+Lumora";
    class RecordFactory;
};
using Images = SwiftUI::ImageRecord<Module>;
using Colors = SwiftUI::ColorRecord<Module>;
using DataSets = SwiftUI::DataRecord<Module>;

class Module::RecordFactory {
public:
    static constexpr Images image(const char* name) { return Images(name); }
    static constexpr Colors color(const char* name) { return Colors(name); }
    static constexpr DataSets data(const char* name) { return DataSets(name); }
    static void assign(const Colors& record, const UIKit::UIColor& color) { record.setColor(color); }
};

// Constants that run no code when the program starts or exits.
constinit const Images send = Module::RecordFactory::image("send");
constinit const Colors ink = Module::RecordFactory::color("ink");
constinit const Colors contested = Module::RecordFactory::color("ink");
constinit const Colors assigned = Module::RecordFactory::color("ink");
constinit const DataSets regions = Module::RecordFactory::data("regions");
static_assert(std::is_trivially_destructible_v<Images> && std::is_trivially_destructible_v<Colors> &&
              std::is_trivially_destructible_v<DataSets>);

// Users can copy records of images and data, but not of colours, and can create none.
template <class Record>
constexpr bool isMadeByTheModuleOnly =
    !std::is_default_constructible_v<Record> && !std::is_constructible_v<Record, const char*> &&
    !std::is_constructible_v<Record, std::string>;
static_assert(isMadeByTheModuleOnly<Images> && isMadeByTheModuleOnly<Colors> && isMadeByTheModuleOnly<DataSets>);
static_assert(std::is_trivially_copyable_v<Images> && std::is_trivially_copyable_v<DataSets>);
static_assert(!std::is_copy_constructible_v<Colors> && !std::is_move_constructible_v<Colors> &&
              !std::is_copy_assignable_v<Colors>);

int lookupsBy(auto&& read) {
    const int before = Module::lookups;
    read();
    return Module::lookups - before;
}

TEST(AssetRecord, ImagesAndDataAreLookedUpEachTime) {
    EXPECT_EQ(send.name(), "send");
    EXPECT_EQ(send.image(), UIKit::UIImage::imageNamed("send", Sample::bundle()));
    EXPECT_EQ(send.swiftUIImage(), SwiftUI::Image("send", Sample::bundle()));
    EXPECT_EQ(regions.data().typeIdentifier(), "public.json");
    EXPECT_EQ(lookupsBy([] {
                  static_cast<void>(send.image());
                  static_cast<void>(send.image());
              }),
              2);
    EXPECT_EQ(lookupsBy([] {
                  static_cast<void>(regions.data());
                  static_cast<void>(regions.data());
              }),
              2);
}

TEST(AssetRecord, ColorIsLookedUpOnceAndFollowsTheTraits) {
    EXPECT_EQ(lookupsBy([] {
                  const UIKit::UIColor& color = ink.color();
                  EXPECT_EQ(&color, &ink.color());
                  EXPECT_EQ(&ink.swiftUIColor(), &ink.swiftUIColor());
                  EXPECT_EQ(color.rgba()->red, 0.125);
                  const Sample::TraitsScope scope(Sample::dark);
                  EXPECT_EQ(color.rgba()->red, 0.875);
              }),
              2); // once for color(), once for swiftUIColor()
    EXPECT_EQ(ink.swiftUIColor(), SwiftUI::Color("ink", Sample::bundle()));

    Module::RecordFactory::assign(assigned, {3, 2, 1, 0});
    EXPECT_EQ(assigned.color(), UIKit::UIColor(3, 2, 1, 0));
}

TEST(AssetRecord, ColorReadByManyThreadsFirst) {
    std::array<const UIKit::UIColor*, 8> seen{};
    {
        std::vector<std::jthread> threads;
        for (const UIKit::UIColor*& each : seen)
            threads.emplace_back([&each] { each = &contested.color(); });
    }
    for (const UIKit::UIColor* each : seen)
        EXPECT_EQ(each, &contested.color());
}

TEST(AssetRecordDeathTest, MissingAssetStopsTheProcess) {
    Sample::bundle(); // created in this process: a stopped child would leave its folders behind
    static constexpr Images image = Module::RecordFactory::image("star-big_.");
    static constexpr DataSets data = Module::RecordFactory::data("send");
    static constinit const Colors color = Module::RecordFactory::color("");
    // File and lines are those that existing crash reports name.
    const auto report = [](const std::string& message, const char* line) {
        return "^Fatal error: " + message + ": file TuistAssets\\+Lumora, line " + line + "\n$";
    };
    const testing::KilledBySignal aborted(SIGABRT);
    EXPECT_EXIT(static_cast<void>(image.image()), aborted,
                report("Unable to load image asset named star-big_\\.\\.", "685"));
    EXPECT_EXIT(static_cast<void>(data.data()), aborted, report("Unable to load data asset named send\\.", "645"));
    EXPECT_EXIT(static_cast<void>(color.color()), aborted, report("Unable to load color asset named \\.", "587"));
    // Views never stop the process.
    EXPECT_EQ(image.swiftUIImage().asset().name, "star-big_.");
    EXPECT_EQ(color.swiftUIColor().asset()->name, "");
}

} // namespace
