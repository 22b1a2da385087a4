// SwiftUI/Color.h
// A colour view. It has a UIColor, or the name of a colour asset, which resolve() looks up when the view is drawn.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"
#include "UIKit/UIColor.h"
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace SwiftUI {

// A view's reference to an asset.
struct NamedAsset {
    std::string name;
    const Foundation::NSBundle* bundle; // never null
    friend bool operator==(const NamedAsset&, const NamedAsset&) = default;
};

class LUMORA_EXPORT Color {
public:
    Color(std::string name, const Foundation::NSBundle& bundle) : state_(NamedAsset{std::move(name), &bundle}) {}
    explicit Color(const UIKit::UIColor& color) : state_(color) {}

    // The named asset, or null when the view has a UIColor.
    [[nodiscard]] const NamedAsset* asset() const noexcept { return std::get_if<NamedAsset>(&state_); }
    // The colour to draw for these traits, completed by the current ones; no value when colorNamed() gives none.
    [[nodiscard]] std::optional<UIKit::UIColor> resolve(const UIKit::UITraitCollection& traits) const;

    friend bool operator==(const Color&, const Color&) = default;

private:
    std::variant<NamedAsset, UIKit::UIColor> state_;
};

} // namespace SwiftUI
