// Foundation/Locale.h
// A user's language, region and regional settings, known by an identifier such as "de_AT" or "ar_EG@numbers=latn".
// Text: ASCII by custom, kept as given. Threads: any; values.
#pragma once

#include "Runtime/Export.h"
#include <string>

namespace Foundation {

class LUMORA_EXPORT Locale {
public:
    // Any text is an identifier; one that means nothing formats as the root locale does.
    explicit Locale(std::string identifier) : identifier_(std::move(identifier)) {}

    // The locale that the host says is the user's, read anew at every call.
    [[nodiscard]] static Locale current();

    [[nodiscard]] const std::string& identifier() const noexcept { return identifier_; }
    friend bool operator==(const Locale&, const Locale&) = default;
    // The identifier.
    friend std::string describe(const Locale& locale) { return locale.identifier_; }

private:
    std::string identifier_;
};

} // namespace Foundation
