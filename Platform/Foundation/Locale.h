// Foundation/Locale.h
// A user's language, region and regional settings, given by an identifier such as "de_AT" or "ar_EG@numbers=latn".
// Text: usually ASCII, kept unchanged. Threads: plain values.
#pragma once

#include "Runtime/Export.h"
#include <string>
#include <string_view>

namespace Foundation {

class LUMORA_EXPORT Locale {
public:
    // Accepts any string; an unknown identifier formats as the root locale.
    explicit Locale(std::string_view identifier) : identifier_(identifier) {}

    // The user's locale according to the host settings, read at every call.
    [[nodiscard]] static Locale current();

    [[nodiscard]] const std::string& identifier() const noexcept { return identifier_; }
    friend bool operator==(const Locale&, const Locale&) = default;
    // For Describable.
    friend std::string describe(const Locale& locale) { return locale.identifier_; }

private:
    std::string identifier_;
};

} // namespace Foundation
