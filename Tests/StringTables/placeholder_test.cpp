#include "StringTables/internal/Placeholder.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using StringTables::Placeholder;

std::string size(const Placeholder::Size& size) {
    using From = Placeholder::Size::From;
    return size.from == From::none ? "" : size.from == From::argument ? "*" : std::to_string(size.value);
}

// Every placeholder of `format` as "<position$ flags width .precision :bits conversion>", the rest as it stands.
std::string marked(std::string_view format) {
    std::string out;
    std::size_t at = 0;
    while (const auto found = StringTables::nextPlaceholder(format, at)) {
        out.append(format.substr(at, found->begin - at)).append("<");
        if (found->position)
            out += std::to_string(found->position) + "$";
        out.append(found->leftAligned ? "-" : "")
            .append(found->plusSign ? "+" : "")
            .append(found->spaceSign ? " " : "");
        out.append(found->alternative ? "#" : "").append(found->zeroPadded ? "0" : "").append(size(found->width));
        if (found->precision.from != Placeholder::Size::From::none)
            out.append(".").append(size(found->precision));
        if (found->bits != 64)
            out.append(":").append(std::to_string(found->bits));
        const char kinds[] = {'%', '@', 'i'};
        const char kind = kinds[static_cast<std::size_t>(found->kind)];
        out.append(kind == 'i' ? "i" : "").append(1, found->conversion).append(">");
        EXPECT_EQ(format[found->begin], '%');
        EXPECT_GT(found->end, found->begin + 1);
        at = found->end;
    }
    return out.append(format.substr(at));
}

TEST(Placeholder, Finds) {
    const struct {
        int line;
        std::string format, expected;
    } cases[] = {
        {__LINE__, "", ""},
        {__LINE__, "%@ of %@, %d%%", "<@> of <@>, <id><%>"},
        {__LINE__, "%d%i%u%x%X%o%c", "<id><ii><iu><ix><iX><io><ic>"},
        {__LINE__, "%D%U%O%C", "<id><iu><io><ic>"},
        {__LINE__, "%hhd %hd %ld %lld %qd %zd %td %jd %Ld", "<:8id> <:16id> <id> <id> <id> <id> <id> <id> <id>"},
        {__LINE__, "%l@ %lu", "<@> <iu>"},
        {__LINE__, "%2$@ %1$d %9999$@", "<2$@> <1$id> <9999$@>"},
        {__LINE__, "%1$05d %1$-+ #'7.3ld", "<1$05id> <1$-+ #7.3id>"},
        {__LINE__, "%05d %-5d %5.3d %.2d %.d", "<05id> <-5id> <5.3id> <.2id> <.0id>"},
        {__LINE__, "%*d %.*d %-*.*d", "<*id> <.*id> <-*.*id>"},
        {__LINE__, "%10@ %999999d", "<10@> <999999id>"},
        {__LINE__, "%'d", "<id>"},
        {__LINE__, "100% of max", "100< io>f max"},
        {__LINE__, "é%@日", "é<@>日"},
    };
    for (const auto& [line, format, expected] : cases)
        EXPECT_EQ(marked(format), expected) << "line " << line;
}

TEST(Placeholder, PassesOverWhatIsNone) {
    for (const char* const format :
         {"100%", "% ", "%s %p %f %Z", "%0$@", "%10000$@", "%99999999999999999999$@", "%$@", "%1$", "%1", "%l", "%.",
          "%*", "%1000000d", "%.0000001d", "%hhhd", "%llld", "%*1$d", "%é"})
        EXPECT_EQ(marked(format), format);
    EXPECT_EQ(marked("%s%@"), "%s<@>");
    EXPECT_EQ(marked("5% %d"), "5% <id>"); // a percent sign that is not doubled takes no conversion of the next
    EXPECT_EQ(marked("%1$%@"), "%1$<@>");
    EXPECT_EQ(marked(std::string("%\0@%5\0d%@", 9)), std::string("%\0@%5\0d<@>", 10));
    EXPECT_EQ(StringTables::nextPlaceholder("%@", 1), std::nullopt);
    EXPECT_EQ(StringTables::nextPlaceholder("%@", 3), std::nullopt);
    const std::string percents(10'000'001, '%'), flags = "%" + std::string(10'000'000, '-');
    EXPECT_EQ(StringTables::nextPlaceholder(percents, 10'000'000), std::nullopt);
    EXPECT_EQ(StringTables::nextPlaceholder(flags, 0), std::nullopt);
}

} // namespace
