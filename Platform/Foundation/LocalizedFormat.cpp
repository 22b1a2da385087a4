#include "Foundation/LocalizedFormat.h"

#include "Foundation/String.h"
#include "Foundation/internal/FormattedText.h"
#include "Foundation/internal/PluralText.h"

namespace Foundation::String {

namespace {

std::string formatted(const LocalizedFormat& format, const Locale* locale, std::span<const FormatArgument> arguments) {
    if (format.plural() == nullptr) [[likely]]
        return detail::formattedText(format.text(), format.percents(), locale, arguments);
    const std::string chosen = detail::chosenFormat(*format.plural(), format.language(), arguments);
    return detail::formattedText(chosen, {}, locale, arguments);
}

} // namespace

std::string format(const LocalizedFormat& format, const Locale& locale, std::span<const FormatArgument> arguments) {
    return formatted(format, &locale, arguments);
}

std::string format(const LocalizedFormat& format, std::span<const FormatArgument> arguments) {
    return formatted(format, nullptr, arguments);
}

} // namespace Foundation::String
