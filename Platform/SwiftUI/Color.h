// SwiftUI/Color.h
// A colour as a view. It says which colour is meant; whether an asset of that name is there turns out when it is drawn.
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

// An asset that a view names.
struct NamedAsset {
    std::string name;
    const Foundation::NSBundle* bundle; // never null
    friend bool operator==(const NamedAsset&, const NamedAsset&) = default;
};

class LUMORA_EXPORT Color {
public:
    Color(std::string name, const Foundation::NSBundle& bundle) : state_(NamedAsset{std::move(name), &bundle}) {}
    explicit Color(const UIKit::UIColor& color) : state_(color) {}

    // The asset it names, or null.
    [[nodiscard]] const NamedAsset* asset() const noexcept { return std::get_if<NamedAsset>(&state_); }
    // What a renderer draws for these traits, with those in force now where they are unspecified; no value when there
    // is no asset of the name.
    [[nodiscard]] std::optional<UIKit::UIColor> resolve(const UIKit::UITraitCollection& traits) const;

    friend bool operator==(const Color&, const Color&) = default;

private:
    std::variant<NamedAsset, UIKit::UIColor> state_;
};

} // namespace SwiftUI
