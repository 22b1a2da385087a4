// SwiftUI/AssetRecord.h
// The records that represent a module's assets: images, colours, data. A module instantiates them with
//
//     struct AssetModule {
//         static const Foundation::NSBundle& bundle();
//         static constexpr std::string_view sourceName = "TuistAssets+Lumora"; // the file that error reports name
//         class RecordFactory; // the only class that can create records and assign colours
//     };
//     using LumoraImages = SwiftUI::ImageRecord<AssetModule>;
//
// and defines the class RecordFactory in the same header, so that users cannot define it themselves,
//
//     class AssetModule::RecordFactory {
//     public:
//         static constexpr LumoraImages image(const char* name) noexcept;
//     };
//
// but defines its functions in a separate header, which only the sources that define records or assign colours include:
//
//     constinit const LumoraImages LumoraAsset::Images::send = AssetModule::RecordFactory::image("send");
//
// Records are constants: no code runs to create or destroy them.
// Text: UTF-8. Threads: any. Ownership: names are string literals; returned references are valid until the process
// ends. Errors: reading stops the process if the asset is missing, the catalog damaged or the data file unreadable; it
// throws std::bad_alloc or std::system_error when memory or descriptors run out or the device fails, and then caches
// nothing.
#pragma once

#include "Runtime/Export.h"
#include "SwiftUI/Color.h"
#include "SwiftUI/Image.h"
#include "UIKit/UIKit.h"
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace SwiftUI {

namespace detail {

enum class AssetKind : std::uint8_t { image, color, data };

// The line number in the report of a missing asset, by kind. Neither it nor `sourceName` is a place in this code: older
// versions of the application report these values, and crash reports of all versions are compared.
inline constexpr std::uint32_t colorReportLine = 587, dataReportLine = 645, imageReportLine = 685;

// Stops the process, because a module without one of its assets was built incorrectly. If the asset is unreadable
// because of a transient error, throws std::bad_alloc or std::system_error instead.
[[noreturn]] LUMORA_EXPORT void missingAsset(AssetKind kind, std::string_view name, const Foundation::NSBundle& bundle,
                                             std::string_view source, std::uint32_t line);

// A cached value that can be replaced, unlike a Runtime::OnceSlot. Lock-free: several threads may create the first
// value at the same time, and all of them use the one that was stored first. Replaced values are never freed, because
// callers hold references to them. All functions are const, because records are constants.
template <class Value> class ReplaceableCache {
public:
    constexpr ReplaceableCache() noexcept = default;

    // Null before the first value.
    const Value* find() const noexcept { return value_.load(std::memory_order_acquire); }
    // Stores the value if there is none yet. Returns the stored one.
    const Value& keep(Value value) const {
        auto made = std::make_unique<const Value>(std::move(value));
        const Value* others = nullptr;
        return value_.compare_exchange_strong(others, made.get(), std::memory_order_acq_rel) ? *made.release()
                                                                                             : *others;
    }
    // Stores another value; references to the old one stay valid.
    void replace(Value value) const { value_.store(new Value(std::move(value)), std::memory_order_release); }

private:
    mutable std::atomic<const Value*> value_{nullptr};
};

} // namespace detail

// An image asset. A plain value without a cache: each read is a lookup in the platform.
template <class Module> class ImageRecord {
public:
    // As the catalog spells it.
    std::string name() const { return name_; }
    // Stops the process when the asset is missing.
    UIKit::UIImage image() const {
        if (const auto found = UIKit::UIImage::imageNamed(name_, Module::bundle()))
            return *found;
        detail::missingAsset(detail::AssetKind::image, name_, Module::bundle(), Module::sourceName,
                             detail::imageReportLine);
    }
    // Never reports a missing asset.
    Image swiftUIImage() const { return Image(name_, Module::bundle()); }

private:
    friend typename Module::RecordFactory;
    constexpr explicit ImageRecord(const char* name) noexcept : name_(name) {}

    const char* name_;
};

// A colour asset. There is one shared object per asset, so that its colour is looked up once per process.
template <class Module> class ColorRecord {
public:
    ColorRecord(const ColorRecord&) = delete;
    ColorRecord& operator=(const ColorRecord&) = delete;

    // As the catalog spells it.
    std::string name() const { return name_; }
    // Returns the same object at every call until setColor() replaces it; a colour from the catalog follows the current
    // traits. Stops the process when the asset is missing.
    const UIKit::UIColor& color() const {
        const UIKit::UIColor* known = color_.find();
        return known != nullptr ? *known : load();
    }
    // Returns the same object at every call until setSwiftUIColor() replaces it. Never reports a missing asset.
    const Color& swiftUIColor() const {
        const Color* known = swiftUIColor_.find();
        return known != nullptr ? *known : swiftUIColor_.keep(Color(name_, Module::bundle()));
    }

private:
    friend typename Module::RecordFactory;
    constexpr explicit ColorRecord(const char* name) noexcept : name_(name) {}

    // Kept out of line, so that the fast path is one load and one branch.
    [[gnu::noinline, gnu::cold]] const UIKit::UIColor& load() const {
        if (const auto found = UIKit::UIColor::colorNamed(name_, Module::bundle()))
            return color_.keep(*found);
        detail::missingAsset(detail::AssetKind::color, name_, Module::bundle(), Module::sourceName,
                             detail::colorReportLine);
    }
    // Called by RecordFactory: later reads return the assigned value.
    void setColor(const UIKit::UIColor& color) const { color_.replace(color); }
    void setSwiftUIColor(Color color) const { swiftUIColor_.replace(std::move(color)); }

    const char* name_;
    detail::ReplaceableCache<UIKit::UIColor> color_;
    detail::ReplaceableCache<Color> swiftUIColor_;
};

// A data asset. A plain value without a cache: each read creates a new NSDataAsset.
template <class Module> class DataRecord {
public:
    // As the catalog spells it.
    std::string name() const { return name_; }
    // Stops the process when the asset is missing.
    UIKit::NSDataAsset data() const {
        if (const auto found = UIKit::NSDataAsset::assetWithName(name_, Module::bundle()))
            return *found;
        detail::missingAsset(detail::AssetKind::data, name_, Module::bundle(), Module::sourceName,
                             detail::dataReportLine);
    }

private:
    friend typename Module::RecordFactory;
    constexpr explicit DataRecord(const char* name) noexcept : name_(name) {}

    const char* name_;
};

} // namespace SwiftUI
