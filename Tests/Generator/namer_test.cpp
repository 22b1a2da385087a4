#include "Generator/Namer.h"

#include <gtest/gtest.h>

namespace {

namespace Namer = Generator::Namer;

struct Pair {
    int line;
    std::string_view from;
    std::string_view to;
};

// The dotted path of a key: "Helpdesk.YourRequestIsSent.weWillContactYouSoon".
std::string path(std::string_view key) {
    std::string path;
    const auto components = Namer::components(key);
    for (const std::string_view& component : components)
        path += &component == &components.back() ? Namer::entryName(component) : Namer::groupName(component) + '.';
    return path;
}

TEST(Namer, NamesEntries) {
    constexpr Pair pairs[] = {
        {__LINE__, "access_tab_title", "accessTabTitle"},
        {__LINE__, "day_1", "day1"},
        {__LINE__, "next_level_message0_finished", "nextLevelMessage0Finished"},
        {__LINE__, "SportFeed", "sportFeed"},
        {__LINE__, "DisLikesTitle", "disLikesTitle"},
        {__LINE__, "MSG", "msg"},
        {__LINE__, "N/A", "na"},
        {__LINE__, "Trainer experience, years", "trainerExperienceYears"},
        {__LINE__, "Achievement:", "achievement"},
        {__LINE__, "% of max weight", "ofMaxWeight"},
        {__LINE__, "Non-mandatory...", "nonMandatory"},
        {__LINE__, "You can't set a price that exceeds %@", "youCanTSetAPriceThatExceeds"},
        {__LINE__, "SportFood(shortened)", "sportFoodShortened"},
        {__LINE__, "Invoice №", "invoice№"},
        {__LINE__, "__private__thing", "privateThing"},
        // If a lower-case letter follows several capitals, the last of them begins the next word.
        {__LINE__, "URLPath", "urlPath"},
        {__LINE__, "ABC1st", "abc1st"},
        // Other scripts may or may not have letter case; digits of all scripts count as digits.
        {__LINE__, "ПриветМир", "приветМир"},
        {__LINE__, "日本 語", "日本語"},
        {__LINE__, "٣ days", "_٣Days"},
        // Invisible characters and invalid bytes separate words.
        {__LINE__, "one\u200Btwo \u2764\uFE0F", "oneTwo"},
        {__LINE__, "one\xFFtwo", "oneTwo"},
        {__LINE__, "___", ""},
        {__LINE__, "%@ ?!", ""},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(Namer::entryName(pair.from), pair.to) << "line " << pair.line;
}

TEST(Namer, NamesGroups) {
    constexpr Pair pairs[] = {
        {__LINE__, "widget", "Widget"},
        {__LINE__, "TrainersHQ", "TrainersHQ"},
        {__LINE__, "\u0421hatlist", "\u0421hatlist"},
        {__LINE__, "10ExerciseStraight", "_10ExerciseStraight"},
        // Identifiers of layout files. If capitalizing the first character of each part leaves no lower-case letter,
        // the other capitals become lower-case, except after digits.
        {__LINE__, "0ie-tn-jCZ", "_0ieTnJCZ"},
        {__LINE__, "9ui-9h-hZp", "_9ui9hHZp"},
        {__LINE__, "1aq-bW-Am5", "_1aqBWAm5"},
        {__LINE__, "77y-Pf-GI8", "_77yPfGI8"},
        {__LINE__, "9cf-RD-8Ck", "_9cfRD8Ck"},
        {__LINE__, "AgV-4K-175", "AgV4K175"},
        {__LINE__, "BrZ-pl-zia", "BrZPlZia"},
        {__LINE__, "BwG-mB-Svz", "BwGMBSvz"},
        {__LINE__, "GUC-wC-acO", "GUCWCAcO"},
        {__LINE__, "OW0-Hn-SQQ", "OW0HnSQQ"},
        {__LINE__, "TNG-hK-ry1", "TNGHKRy1"},
        {__LINE__, "Vx7-cQ-Y98", "Vx7CQY98"},
        {__LINE__, "Zax-21-m9Z", "Zax21M9Z"},
        {__LINE__, "eyb-ki-1Ke", "EybKi1Ke"},
        {__LINE__, "j33-53-cRO", "J3353Cro"},
        {__LINE__, "jaZ-w5-xeq", "JaZW5Xeq"},
        {__LINE__, "u7b-tV-OVs", "U7bTVOVs"},
        {__LINE__, "wAM-L2-CzQ", "WAML2CzQ"},
        {__LINE__, "wv8-eT-Q8m", "Wv8ETQ8m"},
        {__LINE__, "yLc-lL-BF9", "YLcLLBF9"},
        {__LINE__, "78f-gD-71x", "_78fGD71x"},
        {__LINE__, "YgR-Jq-QH5", "YgRJqQH5"},
        {__LINE__, "0PF-4e-Qj5", "_0PF4eQj5"},
        {__LINE__, "1WQ-G7-lax", "_1WQG7Lax"},
        {__LINE__, "B9V-bH-3Qi", "B9VBH3Qi"},
        {__LINE__, "Ggv-cl-usN", "GgvClUsN"},
        {__LINE__, "LyX-em-Rfd", "LyXEmRfd"},
        {__LINE__, "PbG-su-4jK", "PbGSu4jK"},
        {__LINE__, "SKs-oS-0p9", "SKsOS0p9"},
        {__LINE__, "Uro-xD-w0U", "UroXDW0U"},
        {__LINE__, "cIA-4K-TL1", "Cia4KTl1"},
        {__LINE__, "d6j-tt-iK6", "D6jTtIK6"},
        {__LINE__, "dKF-Dn-liH", "DKFDnLiH"},
        {__LINE__, "dt2-5U-Wad", "Dt25UWad"},
        {__LINE__, "ehk-xY-Bdw", "EhkXYBdw"},
        {__LINE__, "pTW-QY-X2o", "PTWQYX2o"},
        {__LINE__, "rlX-lx-0Vm", "RlXLx0Vm"},
        {__LINE__, "x1i-Dg-QT3", "X1iDgQT3"},
        {__LINE__, "yvG-pf-l3d", "YvGPfL3d"},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(Namer::groupName(pair.from), pair.to) << "line " << pair.line;
}

TEST(Namer, SplitsKeysAtDots) {
    constexpr Pair pairs[] = {
        {__LINE__, "Compressing...", "compressing"},
        {__LINE__, "..a..b", "A.b"},
        {__LINE__, "Helpdesk.Your request #%@ is sent. We will contact you soon.",
         "Helpdesk.YourRequestIsSent.weWillContactYouSoon"},
        {__LINE__, "widget.fitness.inactive.after_days", "Widget.Fitness.Inactive.afterDays"},
        {__LINE__, "9cf-RD-8Ck.normalTitle", "_9cfRD8Ck.normalTitle"},
        {__LINE__, "...", ""},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(path(pair.from), pair.to) << "line " << pair.line;
}

// Names that are keywords, or macros of a compiler or of the system's headers, get an underscore.
TEST(Namer, SpellsNamesInCpp) {
    constexpr Pair pairs[] = {
        {__LINE__, "continue", "continue_"},
        {__LINE__, "delete", "delete_"},
        {__LINE__, "in", "in"},
        {__LINE__, "any", "any"},
        {__LINE__, "Delete", "Delete"},
        {__LINE__, "xor", "xor_"},
        {__LINE__, "errno", "errno_"},
        {__LINE__, "unix", "unix_"},
        {__LINE__, "sigmask", "sigmask_"},
        {__LINE__, "issubnormal", "issubnormal_"},
        {__LINE__, "be16toh", "be16toh_"},
        {__LINE__, "makedev", "makedev_"},
        {__LINE__, "PRId64", "PRId64_"},
        {__LINE__, "SCNxLEAST8", "SCNxLEAST8_"},
        {__LINE__, "PRIx", "PRIx"},
        {__LINE__, "PRIde", "PRIde"},
        {__LINE__, "SCNi8_x", "SCNi8_x"},
        {__LINE__, "I", "I_"},
        {__LINE__, "NULL", "NULL_"},
        {__LINE__, "EIO", "EIO_"},
        {__LINE__, "SIGINT", "SIGINT_"},
        {__LINE__, "EU", "EU"},
        {__LINE__, "WNOHANG", "WNOHANG_"},
        {__LINE__, "FAQ", "FAQ"},
        {__LINE__, "_2D", "_2D"},
        {__LINE__, "EioX", "EioX"},
        {__LINE__, "invoice№", "invoiceNo"},
        {__LINE__, "\u0421hatlist", "\u0421hatlist"},
        {__LINE__, "x²", "x2"},
        {__LINE__, "²x", "_2x"},
        {__LINE__, "\u0301x", "_\u0301x"},
        {__LINE__, "e\u0301", "\u00E9"},
        {__LINE__, "", ""},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(Namer::spelling(pair.from), pair.to) << "line " << pair.line;
}

TEST(Namer, KeepsTheNamesOfTables) {
    constexpr Pair pairs[] = {
        {__LINE__, "Localizable", "Localizable"},
        {__LINE__, "my_table", "my_table"},
        {__LINE__, "delete", "delete_"},
        {__LINE__, "detail", "detail_"},
        {__LINE__, "Odd names", "OddNames"},
        {__LINE__, "_Private", "Private"},
        {__LINE__, "a__b", "AB"},
        {__LINE__, "2nd", "_2nd"},
        {__LINE__, "...", ""},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(Namer::tableSpelling(pair.from), pair.to) << "line " << pair.line;
}

TEST(Namer, AvoidsReservedNamespaces) {
    for (const char* valid : {"Shop", "standard", "std_", "posixShop", "M2", "SHOP", "Магазин"})
        EXPECT_TRUE(Namer::isModuleName(valid)) << valid;
    for (const char* invalid :
         {"std", "std2", "posix", "main", "class", "errno", "EIO", "_Shop", "_shop", "my__shop", "2nd", ""})
        EXPECT_FALSE(Namer::isModuleName(invalid)) << invalid;
}

} // namespace
