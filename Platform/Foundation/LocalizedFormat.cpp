#include "Foundation/LocalizedFormat.h"

#include "Foundation/String.h"
#include "Foundation/internal/PluralText.h"

namespace Foundation::String {

std::string format(const LocalizedFormat& format, const Locale& locale, std::span<const FormatArgument> arguments) {
    if (format.plural() == nullptr) [[likely]]
        return String::format(format.text(), locale, arguments);
    return String::format(detail::chosenFormat(*format.plural(), format.language(), arguments), locale, arguments);
}

} // namespace Foundation::String
