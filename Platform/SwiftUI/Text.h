// SwiftUI/Text.h
// A text view.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Runtime/Export.h" // reports a compiler mode older than C++20
#include <string>
#include <utility>

namespace SwiftUI {

class Text {
public:
    // The text is shown verbatim, without a lookup.
    explicit Text(std::string verbatim) : text_(std::move(verbatim)) {}

    const std::string& string() const noexcept { return text_; }
    friend bool operator==(const Text&, const Text&) = default;

private:
    std::string text_;
};

} // namespace SwiftUI
