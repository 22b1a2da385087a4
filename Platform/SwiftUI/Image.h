// SwiftUI/Image.h
// A picture as a view. It says which picture is meant; whether an asset of that name is there turns out when it is
// drawn. Text: UTF-8. Threads: plain values.
#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"
#include "SwiftUI/Color.h" // NamedAsset
#include "SwiftUI/Text.h"
#include "UIKit/UIImage.h"
#include <optional>
#include <string>
#include <utility>

namespace SwiftUI {

class LUMORA_EXPORT Image {
public:
    // Readers who hear the screen are told the name.
    Image(std::string name, const Foundation::NSBundle& bundle) : asset_{std::move(name), &bundle} {}
    // They are told the label.
    Image(std::string name, const Foundation::NSBundle& bundle, Text label)
        : asset_{std::move(name), &bundle}, label_(std::move(label)) {}
    // They are told nothing.
    [[nodiscard]] static Image decorative(std::string name, const Foundation::NSBundle& bundle) {
        Image image(std::move(name), bundle);
        image.isDecorative_ = true;
        return image;
    }

    [[nodiscard]] const NamedAsset& asset() const noexcept { return asset_; }
    [[nodiscard]] const std::optional<Text>& label() const noexcept { return label_; }
    [[nodiscard]] bool isDecorative() const noexcept { return isDecorative_; }
    // What a renderer draws for these traits, with those in force where they are unspecified; no value when there is no
    // asset of the name.
    [[nodiscard]] std::optional<UIKit::UIImage> resolve(const UIKit::UITraitCollection& traits) const;

    friend bool operator==(const Image&, const Image&) = default;

private:
    NamedAsset asset_;
    std::optional<Text> label_;
    bool isDecorative_ = false;
};

} // namespace SwiftUI
