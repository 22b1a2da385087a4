// Formats a text with a locale and arguments from the input. The lines of the input are the locale, the format and the
// arguments: '#' and eight bytes are an integer, '.' and eight bytes a floating-point number, any other line is a text.
#include "Foundation/String.h"

#include "../Require.h"
#include <cstring>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const auto nextLine = [&rest] {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        return line;
    };
    const Foundation::Locale locale{std::string(nextLine())};
    const std::string_view format = nextLine();
    std::vector<Foundation::FormatArgument> arguments;
    // At least as many symbols as one placeholder prints: 512 for the integer digits of a double and their separators,
    // the largest width for padding, twice the largest precision for digits and separators, and all texts.
    std::size_t mostSymbols = 512 + 3 * Foundation::String::largestSize;
    while (!rest.empty()) {
        const std::string_view line = nextLine();
        std::int64_t integer = 0;
        double number = 0;
        if (line.size() == 1 + sizeof integer && line.front() == '#') {
            std::memcpy(&integer, line.data() + 1, sizeof integer);
            arguments.emplace_back(integer);
        } else if (line.size() == 1 + sizeof number && line.front() == '.') {
            std::memcpy(&number, line.data() + 1, sizeof number);
            arguments.emplace_back(number);
        } else {
            arguments.emplace_back(line);
            mostSymbols += line.size();
        }
    }
    const std::string text = Foundation::String::format(format, locale, arguments);
    constexpr std::size_t longestSymbol = 16; // the bytes of a digit or separator in any locale
    require(text.size() <= format.size() * mostSymbols * longestSymbol);
    require(text.size() <= format.size() + Foundation::String::largestGrowth);
    require(format.find('%') != std::string_view::npos || text == format);
    return 0;
}
