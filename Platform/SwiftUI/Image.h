// SwiftUI/Image.h
// An image view. It has the name of an image asset, which resolve() looks up when the view is drawn.
// Text: UTF-8. Threads: plain values.
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
    // Accessibility label: the asset name.
    Image(std::string name, const Foundation::NSBundle& bundle) : asset_{std::move(name), &bundle} {}
    // Accessibility label: `label`.
    Image(std::string name, const Foundation::NSBundle& bundle, Text label)
        : asset_{std::move(name), &bundle}, label_(std::move(label)) {}
    // An image that screen readers skip.
    [[nodiscard]] static Image decorative(std::string name, const Foundation::NSBundle& bundle) {
        Image image(std::move(name), bundle);
        image.isDecorative_ = true;
        return image;
    }

    [[nodiscard]] const NamedAsset& asset() const noexcept { return asset_; }
    // The accessibility label; no value means the asset name, unless the image is decorative.
    [[nodiscard]] const std::optional<Text>& label() const noexcept { return label_; }
    [[nodiscard]] bool isDecorative() const noexcept { return isDecorative_; }
    // The image to draw for these traits, completed by the current ones; no value when imageNamed() gives none.
    [[nodiscard]] std::optional<UIKit::UIImage> resolve(const UIKit::UITraitCollection& traits) const;

    friend bool operator==(const Image&, const Image&) = default;

private:
    NamedAsset asset_;
    std::optional<Text> label_;
    bool isDecorative_ = false;
};

} // namespace SwiftUI
