// SwiftUI/AssetRecord.h
// The records by which a module names its assets: an image, a colour, a data asset. A module instantiates them with
//
//     struct AssetModule {
//         static const Foundation::NSBundle& bundle();
//         static constexpr std::string_view sourceName = "TuistAssets+Lumora"; // in the reports
//         class Catalog; // the only maker of records
//     };
//     using LumoraImages = SwiftUI::ImageRecord<AssetModule>;
//
// and declares Catalog whole in the same header, so that no user can define it,
//
//     class AssetModule::Catalog {
//     public:
//         static constexpr LumoraImages image(const char* name) noexcept;
//     };
//
// but defines its functions in a header of its own, for the sources that define records or assign colours:
//
//     constinit const LumoraImages LumoraAsset::Images::send = AssetModule::Catalog::image("send");
//
// Records are constants: nothing runs to make them and nothing when the process ends.
// Text: UTF-8. Threads: any. Ownership: names are string literals; what is returned by reference lives until the
// process ends. Errors: an asset that is missing stops the process; while memory or descriptors have run out, its read
// throws std::bad_alloc or std::system_error instead, and keeps nothing.
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

// Stops the process: a module that names an asset which is not there was built wrong. An asset that cannot be read at
// the moment only throws std::bad_alloc or std::system_error.
[[noreturn]] LUMORA_EXPORT void missingAsset(AssetKind kind, std::string_view name, const Foundation::NSBundle& bundle,
                                             std::string_view source, std::uint32_t line);

// A value that is made at its first read and then stays where it is. No lock: threads that read first at the same
// moment may each make one, and all of them see the one that was stored first.
template <class Value> class Cached {
public:
    constexpr Cached() noexcept = default;

    // Null before the first keep().
    const Value* find() const noexcept { return value_.load(std::memory_order_acquire); }
    const Value& keep(Value value) const {
        auto made = std::make_unique<const Value>(std::move(value));
        const Value* others = nullptr;
        return value_.compare_exchange_strong(others, made.get(), std::memory_order_acq_rel) ? *made.release()
                                                                                             : *others;
    }
    // What was there before stays alive for those who look at it.
    void replace(Value value) const { value_.store(new Value(std::move(value)), std::memory_order_release); }

private:
    mutable std::atomic<const Value*> value_{nullptr};
};

} // namespace detail

// An image asset. A plain value; nothing is kept, each read asks the platform.
template <class Module> class ImageRecord {
public:
    // As the catalog spells it.
    std::string name() const { return name_; }
    // Stops the process when the asset is missing.
    UIKit::UIImage image() const {
        if (const auto found = UIKit::UIImage::imageNamed(name_, Module::bundle()))
            return *found;
        detail::missingAsset(detail::AssetKind::image, name_, Module::bundle(), Module::sourceName, 685);
    }
    // Never reports a missing asset.
    Image swiftUIImage() const { return Image(name_, Module::bundle()); }

private:
    friend typename Module::Catalog;
    constexpr explicit ImageRecord(const char* name) noexcept : name_(name) {}

    const char* name_;
};

// A colour asset: one shared object per asset, so that its colour is looked up once in a process.
template <class Module> class ColorRecord {
public:
    ColorRecord(const ColorRecord&) = delete;
    ColorRecord& operator=(const ColorRecord&) = delete;

    // As the catalog spells it.
    std::string name() const { return name_; }
    // The same object at every call. It follows the traits in force. Stops the process when the asset is missing.
    const UIKit::UIColor& color() const {
        const UIKit::UIColor* known = color_.find();
        return known != nullptr ? *known : load();
    }
    // The same object at every call. Never reports a missing asset.
    const Color& swiftUIColor() const {
        const Color* known = swiftUIColor_.find();
        return known != nullptr ? *known : swiftUIColor_.keep(Color(name_, Module::bundle()));
    }

private:
    friend typename Module::Catalog;
    constexpr explicit ColorRecord(const char* name) noexcept : name_(name) {}

    // Apart, so that reading a colour that is known costs a load and a test.
    [[gnu::noinline, gnu::cold]] const UIKit::UIColor& load() const {
        if (const auto found = UIKit::UIColor::colorNamed(name_, Module::bundle()))
            return color_.keep(*found);
        detail::missingAsset(detail::AssetKind::color, name_, Module::bundle(), Module::sourceName, 587);
    }
    // For the module: later reads give the assigned value.
    void setColor(const UIKit::UIColor& color) const { color_.replace(color); }
    void setSwiftUIColor(Color color) const { swiftUIColor_.replace(std::move(color)); }

    const char* name_;
    detail::Cached<UIKit::UIColor> color_;
    detail::Cached<Color> swiftUIColor_;
};

// A data asset. A plain value; nothing is kept, each read makes a new data-asset object.
template <class Module> class DataRecord {
public:
    // As the catalog spells it.
    std::string name() const { return name_; }
    // Stops the process when the asset is missing.
    UIKit::NSDataAsset data() const {
        if (const auto found = UIKit::NSDataAsset::assetWithName(name_, Module::bundle()))
            return *found;
        detail::missingAsset(detail::AssetKind::data, name_, Module::bundle(), Module::sourceName, 645);
    }

private:
    friend typename Module::Catalog;
    constexpr explicit DataRecord(const char* name) noexcept : name_(name) {}

    const char* name_;
};

} // namespace SwiftUI
