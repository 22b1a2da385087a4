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
using ImageRecord = SwiftUI::ImageRecord<Module>;
using ColorRecord = SwiftUI::ColorRecord<Module>;
using DataRecord = SwiftUI::DataRecord<Module>;

class Module::RecordFactory {
public:
    static constexpr ImageRecord image(const char* name) { return ImageRecord(name); }
    static constexpr ColorRecord color(const char* name) { return ColorRecord(name); }
    static constexpr DataRecord data(const char* name) { return DataRecord(name); }
    static void assign(const ColorRecord& record, const UIKit::UIColor& color) { record.setColor(color); }
};

// Constants that run no code when the program starts or exits.
constinit const ImageRecord send = Module::RecordFactory::image("send");
constinit const ColorRecord ink = Module::RecordFactory::color("ink");
constinit const ColorRecord contested = Module::RecordFactory::color("ink");
constinit const ColorRecord assigned = Module::RecordFactory::color("ink");
constinit const DataRecord regions = Module::RecordFactory::data("regions");
static_assert(std::is_trivially_destructible_v<ImageRecord> && std::is_trivially_destructible_v<ColorRecord> &&
              std::is_trivially_destructible_v<DataRecord>);

// Users can copy records of images and data, but not of colours, and can create none.
template <class Record>
constexpr bool isMadeByTheModuleOnly =
    !std::is_default_constructible_v<Record> && !std::is_constructible_v<Record, const char*> &&
    !std::is_constructible_v<Record, std::string>;
static_assert(isMadeByTheModuleOnly<ImageRecord> && isMadeByTheModuleOnly<ColorRecord> &&
              isMadeByTheModuleOnly<DataRecord>);
static_assert(std::is_trivially_copyable_v<ImageRecord> && std::is_trivially_copyable_v<DataRecord>);
static_assert(!std::is_copy_constructible_v<ColorRecord> && !std::is_move_constructible_v<ColorRecord> &&
              !std::is_copy_assignable_v<ColorRecord>);

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
    static constexpr ImageRecord image = Module::RecordFactory::image("star-big_.");
    static constexpr DataRecord data = Module::RecordFactory::data("send");
    static constinit const ColorRecord color = Module::RecordFactory::color("");
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
