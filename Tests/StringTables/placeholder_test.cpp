#include "StringTables/internal/Placeholder.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using StringTables::Placeholder;

std::string size(const Placeholder::Size& size) {
    using From = Placeholder::Size::From;
    if (size.from == From::argument)
        return size.value == 0 ? "*" : "*" + std::to_string(size.value) + "$";
    return size.from == From::none ? "" : std::to_string(size.value);
}

// Shows every placeholder of `format` as "<position$ flags width .precision :bits kind conversion>" without the spaces;
// the kind is "i" for an integer, "n" for a floating-point number and otherwise empty. Shows the rest unchanged.
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
        if (found->kind == Placeholder::Kind::integer)
            out += 'i';
        else if (found->kind == Placeholder::Kind::number)
            out += 'n';
        out.append(1, found->conversion).append(">");
        EXPECT_EQ(format[found->begin], '%');
        EXPECT_GT(found->end, found->begin + 1);
        at = found->end;
    }
    return out.append(format.substr(at));
}

TEST(Placeholder, IsFoundWithAllItsParts) {
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
        {__LINE__, "%2$*1$d %3$.*2$@ %*1$d", "<2$*1$id> <3$.*2$@> <*1$id>"},
        {__LINE__, "%f%F%e%E%g%G%a%A", "<nf><nF><ne><nE><ng><nG><na><nA>"},
        {__LINE__, "%Lf %lf %1$+08.2f", "<nf> <nf> <1$+08.2nf>"},
        {__LINE__, "%s %S %ls %-5.2s", "<@> <@> <@> <-5.2@>"},
        {__LINE__, "%10@ %999999d", "<10@> <999999id>"},
        {__LINE__, "%'d", "<id>"},
        {__LINE__, "100% of max", "100< io>f max"},
        {__LINE__, "é%@日", "é<@>日"},
    };
    for (const auto& [line, format, expected] : cases)
        EXPECT_EQ(marked(format), expected) << "line " << line;
}

TEST(Placeholder, IgnoresInvalidPlaceholders) {
    for (const char* const format :
         {"100%", "% ", "%p %n %Z", "%0$@", "%10000$@", "%99999999999999999999$@", "%$@", "%1$", "%1", "%l", "%.", "%*",
          "%1000000d", "%.0000001d", "%hhhd", "%llld", "%*0$d", "%*1", "%é"})
        EXPECT_EQ(marked(format), format);
    EXPECT_EQ(marked("%p%@"), "%p<@>");
    EXPECT_EQ(marked("5% %d"), "5% <id>"); // a lone percent sign does not consume part of the next placeholder
    EXPECT_EQ(marked("%1$%@"), "%1$<@>");
    EXPECT_EQ(marked(std::string("%\0@%5\0d%@", 9)), std::string("%\0@%5\0d<@>", 10));
    EXPECT_EQ(StringTables::nextPlaceholder("%@", 1), std::nullopt);
    EXPECT_EQ(StringTables::nextPlaceholder("%@", 3), std::nullopt);
    const std::string percents(10'000'001, '%'), flags = "%" + std::string(10'000'000, '-');
    EXPECT_EQ(StringTables::nextPlaceholder(percents, 10'000'000), std::nullopt);
    EXPECT_EQ(StringTables::nextPlaceholder(flags, 0), std::nullopt);
}

TEST(Placeholder, GivesTheSignatureOfAFormat) {
    // A letter for each argument (text, integer, number; '-' for none); then 'm' if the format takes arguments both by
    // position and in order, '%' for a lone percent sign, the name of a variable, and the position and both kinds of a
    // conflict.
    const auto described = [](std::string_view format) {
        const StringTables::FormatSignature signature = StringTables::signatureOf(format);
        std::string out;
        const char kinds[] = {'%', 't', 'i', 'n'};
        const auto letter = [&kinds](Placeholder::Kind kind) { return kinds[static_cast<std::size_t>(kind)]; };
        for (const auto& kind : signature.arguments)
            out += kind ? letter(*kind) : '-';
        out += signature.mixesPositions ? " m" : "";
        out += signature.hasLonePercent ? " %" : "";
        out += signature.unknownVariable.empty() ? "" : " " + signature.unknownVariable;
        if (const auto& conflict = signature.conflict)
            ((out += " " + std::to_string(conflict->position)) += letter(conflict->first)) += letter(conflict->later);
        return out;
    };
    const struct {
        int line;
        std::string_view format;
        std::string expected;
    } cases[] = {
        {__LINE__, "100%%", ""},
        {__LINE__, "100% k", " %"},
        {__LINE__, "%2$#@days@ %1$#@hours@ %#@", "tt m days"},
        {__LINE__, "100% sure", "t"},
        {__LINE__, "%@ %d %.2f %s", "tint"},
        {__LINE__, "%3$@ %1$d %1$i", "i-t"},
        {__LINE__, "%1$@ %2$d %1$d %2$f", "ti 1ti"},
        {__LINE__, "%*.*f %", "iin %"},
        {__LINE__, "%2$*1$f %@", "in m 1it"},
        {__LINE__, "%9999$@ %9998$d", std::string(255, '-') + "t"}, // all from the 256th on count as one
    };
    for (const auto& [line, format, expected] : cases)
        EXPECT_EQ(described(format), expected) << "line " << line;
}

} // namespace
