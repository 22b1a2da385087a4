// Settings that disable rules.
#include "CheckedSource.h"
#include <gtest/gtest.h>

namespace {

using Support::CheckedSource;
using Support::Strings;

TEST(Settings, DisableRulesForSourcesAndLanguages) {
    CheckedSource source(
        {{"en.lproj/T.strings", "a = \"Go on.\";\nb = \"Two  spaces\";"},
         {"de.lproj/T.strings", "a = Los;\nb = Zwei;"},
         {"fr.lproj/T.strings", "a = Allez;\nb = Deux;"},
         {"lumora-check.json", R"({"disable": ["double-space"], "languages": {"de": ["punctuation-mismatch"]}})"}});
    EXPECT_EQ(source.findings(), Strings{"punctuation-mismatch fr.lproj/T.strings:1:1 fr a"});
    EXPECT_EQ(source.takeMessages(), Strings());
    Check::Options options;
    options.disabled.set(static_cast<std::size_t>(Check::Rule::punctuationMismatch));
    EXPECT_EQ(source.findings(options), Strings());
}

TEST(Settings, DisableRulesForAssets) {
    const char* const unfinished = R"({"colors": [{"color": {"reference": "systemRedColor"}},
                                                  {"appearances": [{"appearance": "luminosity", "value": "dark"}]}]})";
    CheckedSource source{{"A.xcassets/one.colorset/Contents.json", unfinished},
                         {"A.xcassets/two.colorset/Contents.json", unfinished},
                         {"lumora-check.json", R"({"assets": {"one": ["asset-missing-dark"]}})"}};
    // Two spaces, because a finding about an asset has no language between its place and its name.
    EXPECT_EQ(source.findings(), Strings{"asset-missing-dark A.xcassets/two.colorset/Contents.json:2:51  two"});
}

TEST(Settings, ReportErrors) {
    const struct {
        int line;
        const char *json, *message;
    } cases[] = {
        {__LINE__, R"({"disable": ["no-rule"]})", "warning: lumora-check.json: unknown rule \"no-rule\""},
        {__LINE__, R"({"languages": {"de": ["no-rule"]}})", "warning: lumora-check.json: unknown rule \"no-rule\""},
        {__LINE__, R"({"disabled": []})", "warning: lumora-check.json: unknown member \"disabled\""},
        {__LINE__, R"({"disable": "coverage"})", "error: lumora-check.json: \"disable\" is not a list of rule names"},
        {__LINE__, R"({"assets": {"a": [1]}})", "error: lumora-check.json: \"a\" is not a list of rule names"},
        {__LINE__, R"({"languages": []})", "error: lumora-check.json: \"languages\" is not an object"},
        {__LINE__, "[]", "error: lumora-check.json: is not an object"},
        {__LINE__, "{", "error: lumora-check.json: invalid JSON"},
    };
    for (const auto& one : cases) {
        CheckedSource source{{"en.lproj/T.strings", "a = b;"}, {"lumora-check.json", one.json}};
        EXPECT_EQ(source.findings(), Strings()) << one.line;
        EXPECT_EQ(source.takeMessages(), Strings{one.message}) << one.line;
    }
}

TEST(Settings, AreReadFromComments) {
    const struct {
        int line;
        const char* comment;
        std::vector<Check::Rule> rules;
        std::vector<std::string_view> unknown;
    } cases[] = {
        {__LINE__, "A title", {}, {}},
        {__LINE__, "lumora: allow missing-key", {Check::Rule::missingKey}, {}},
        {__LINE__,
         "A title\nlumora: allow missing-key, coverage",
         {Check::Rule::missingKey, Check::Rule::coverage},
         {}},
        {__LINE__, "lumora: allow missing-key coverage", {Check::Rule::missingKey, Check::Rule::coverage}, {}},
        {__LINE__, "lumora: allow untranslated because it is a name", {Check::Rule::untranslated}, {}},
        {__LINE__, "lumora: allow nonsense", {}, {"nonsense"}},
        {__LINE__, "lumora: allow Missing-Key\nA title", {}, {"Missing-Key"}},
        {__LINE__, "lumora: allow coverage, nonsense", {Check::Rule::coverage}, {"nonsense"}},
    };
    for (const auto& one : cases) {
        Check::RuleSet expected;
        for (const Check::Rule rule : one.rules)
            expected.set(static_cast<std::size_t>(rule));
        std::vector<std::string_view> unknown;
        EXPECT_EQ(Check::allowedBy(one.comment, &unknown), expected) << one.line;
        EXPECT_EQ(unknown, one.unknown) << one.line;
    }
}

} // namespace
