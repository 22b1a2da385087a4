// A small input with unusual names and its output, both committed, so that reviews show the effect of a change.
#include "../Support/SourceFolder.h"
#include "Generator/Generator.h"

#include <gtest/gtest.h>
#include <map>

namespace {

namespace fs = std::filesystem;

std::map<std::string, std::string> golden() {
    std::map<std::string, std::string> files;
    const fs::path folder = LUMORA_GOLDEN "/expected";
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[fs::relative(entry.path(), folder)] = Support::contents(entry.path());
    return files;
}

std::map<std::string, std::string> generated(const fs::path& folder, const Generator::Options& options) {
    SourceBundle::Diagnostics diagnostics;
    const fs::path folders[] = {folder};
    const auto source = SourceBundle::Source::read(folders, {}, diagnostics);
    const Generator::Model model = Generator::modelOf(source, options, diagnostics);
    std::map<std::string, std::string> files;
    for (const auto& file : Generator::filesOf(model, options))
        files[file.path] = file.content;
    EXPECT_EQ(diagnostics.count(SourceBundle::Severity::warning), 0U);
    EXPECT_FALSE(diagnostics.hasErrors());
    return files;
}

TEST(Golden, MatchesTheGeneratedFiles) {
    const auto expected = golden();
    const Generator::Options options{.module = "Odd", .includes = {"Runtime/Class.h"}, .shards = 2};
    for (int run = 0; run < 2; ++run) { // both runs give the same files
        const auto actual = generated(LUMORA_GOLDEN "/input.bundle", options);
        for (const auto& [path, content] : actual)
            EXPECT_EQ(content, expected.contains(path) ? expected.at(path) : "") << path;
        EXPECT_EQ(actual.size(), expected.size());
    }
    if (HasFailure())
        std::puts("If the change is intended, run this and review the result: build/dev/bin/lumora generate "
                  "Tests/Generator/Golden/input.bundle --module Odd "
                  "-o Tests/Generator/Golden/expected --shards 2 --include Runtime/Class.h");
}

std::size_t count(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size())
        ++count;
    return count;
}

TEST(Golden, TheApplicationsTablesGiveAllAccessors) {
    std::size_t plain = 0;
    std::size_t formatted = 0;
    for (const auto& [path, content] : generated(LUMORA_RESOURCES, {.module = "Lumora", .includes = {}})) {
        plain += count(content, "LUMORA_EXPORT const std::string& ");
        formatted += count(content, "LUMORA_EXPORT std::string ");
    }
    EXPECT_EQ(plain, 1293u);
    EXPECT_EQ(formatted, 108u);
}

} // namespace
