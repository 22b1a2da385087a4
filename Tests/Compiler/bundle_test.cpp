#include "AssetCatalog/internal/Catalog.h"
#include "Compiler/Bundle.h"
#include "Runtime/internal/Descriptor.h"
#include "StringTables/internal/Table.h"

#include "../Support/TemporaryFolder.h"
#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <set>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
using StringTables::Form;
using StringTables::Table;

struct Outcome {
    std::string failure; // the error of compileBundle(), or empty
    std::vector<std::string> diagnostics;
};

Outcome compile(
    const fs::path& source, const fs::path& bundle, const Compiler::Progress& progress = [](auto, auto, auto) {},
    const SourceBundle::SourceOptions& options = {}) {
    SourceBundle::Diagnostics diagnostics;
    const fs::path folders[] = {source};
    const auto read = SourceBundle::Source::read(folders, options, diagnostics);
    const auto done = Compiler::compileBundle(read, folders, bundle, diagnostics, progress);
    Outcome outcome{.failure = done ? "" : done.error().text(), .diagnostics = {}};
    for (const auto& one : diagnostics.all())
        outcome.diagnostics.push_back(one.what.text());
    return outcome;
}

TEST(CompileBundle, MakesBinaryTablesFromEveryForm) {
    const Support::TemporaryFolder folder;
    folder.write("source/Base.lproj/A.strings", "\"k\" = \"ünï\";");
    folder.write("source/ru.lproj/A.strings", "<plist><dict><key>k</key><string>т</string></dict></plist>");
    folder.write("source/ru.lproj/.hidden.strings", "not a table");
    const Outcome outcome = compile(folder / "source", folder / "out.bundle");
    ASSERT_EQ(outcome.failure, "");
    EXPECT_EQ(outcome.diagnostics, std::vector<std::string>());

    EXPECT_EQ(Support::filesBelow(folder / "out.bundle"),
              (std::set<std::string>{".lumora-bundle", "Info.plist", "Base.lproj/A.strings", "ru.lproj/A.strings"}));
    const auto table = Table::read(Support::contents(folder / "out.bundle/ru.lproj/A.strings"));
    ASSERT_TRUE(table);
    EXPECT_EQ(table->form(), Form::binary);
    EXPECT_EQ(table->find("k"), "т");
    const auto information = Table::read(Support::contents(folder / "out.bundle/Info.plist"));
    ASSERT_TRUE(information);
    EXPECT_EQ(information->find("CFBundleDevelopmentRegion"), "en");
}

TEST(CompileBundle, CompletesInfoPlist) {
    const Support::TemporaryFolder folder;
    folder.write("source/de.lproj/T.strings", "a = b;");
    folder.write("source/Info.plist", "CFBundleDevelopmentRegion = de; Other = text;");
    ASSERT_EQ(compile(folder / "source", folder / "out.bundle").failure, "");
    const auto information = Table::read(Support::contents(folder / "out.bundle/Info.plist"));
    ASSERT_TRUE(information);
    EXPECT_EQ(information->form(), Form::binary);
    EXPECT_EQ(information->find("LumoraLanguages"), "de/"); // "/" ends each language
    EXPECT_EQ(information->find("CFBundleDevelopmentRegion"), "de");
    EXPECT_EQ(information->find("Other"), "text");

    // A file with values that are not texts is copied unchanged. To replace a build setting, the file is rewritten
    // without them, which is reported.
    const std::string more = "<plist><dict><key>CFBundleDevelopmentRegion</key><string>de</string>"
                             "<key>a</key><array/></dict></plist>";
    folder.write("source/Info.plist", more);
    ASSERT_EQ(compile(folder / "source", folder / "out.bundle").failure, "");
    EXPECT_EQ(Support::contents(folder / "out.bundle/Info.plist"), more);
    const fs::path info =
        folder.write("source/Info.plist", "CFBundleDevelopmentRegion = \"$(DEVELOPMENT_LANGUAGE)\"; a = ();");
    const Outcome replaced = compile(folder / "source", folder / "out.bundle");
    ASSERT_EQ(replaced.failure, "");
    EXPECT_EQ(std::ranges::count(replaced.diagnostics,
                                 info.string() + ":1:56: the value of \"a\" is an array, not a text; skipped"),
              1);
    EXPECT_EQ(Table::read(Support::contents(folder / "out.bundle/Info.plist"))->find("CFBundleDevelopmentRegion"),
              "en");
    // A damaged file is an error, once, even if its development language is not needed.
    const fs::path damaged = folder.write("source/Info.plist", "Other = text; }");
    const Outcome reported = compile(folder / "source", folder / "out.bundle");
    EXPECT_EQ(reported.failure, "");
    EXPECT_EQ(
        reported.diagnostics,
        (std::vector<std::string>{damaged.string() + ":1:15: expected a key",
                                  (folder / "source").string() +
                                      ": has no development texts: neither in the language en nor in Base.lproj"}));
    const Outcome outcome =
        compile(folder / "source", folder / "out.bundle", [](auto, auto, auto) {}, {.developmentLanguage = "de"});
    EXPECT_TRUE(outcome.failure.starts_with(damaged.string() + ":1:15: ")) << outcome.failure;
}

TEST(CompileBundle, KeepsTheFirstAssetWithAName) {
    const Support::TemporaryFolder folder;
    for (const std::string set : {"A.xcassets/F/x.dataset", "A.xcassets/x.dataset", "B.xcassets/x.dataset"}) {
        folder.write("source/" + set + "/Contents.json", R"({"data": [{"filename": "f"}]})");
        folder.write("source/" + set + "/f", set);
    }
    const Outcome outcome = compile(folder / "source", folder / "out.bundle");
    EXPECT_EQ(outcome.failure, "");
    const std::string twin =
        ": has the name of " + (folder / "source/A.xcassets/x.dataset").string() + " and is left out";
    EXPECT_EQ(outcome.diagnostics,
              (std::vector<std::string>{(folder / "source/A.xcassets/F/x.dataset").string() + twin,
                                        (folder / "source/B.xcassets/x.dataset").string() + twin}));
    EXPECT_NE(Support::contents(folder / "out.bundle/Assets.catalog").find("A.xcassets/x.dataset"), std::string::npos);
}

TEST(CompileBundle, KeepsTheOldBundleWhenASourceIsDamaged) {
    const Support::TemporaryFolder folder;
    folder.write("source/Base.lproj/A.strings", "a = good;");
    ASSERT_EQ(compile(folder / "source", folder / "out.bundle").failure, "");
    const fs::path damaged = folder.write("source/de.lproj/A.strings", "a = good;\n\"b\" = ;\n");

    const Outcome outcome = compile(folder / "source", folder / "out.bundle");
    ASSERT_EQ(outcome.diagnostics.size(), 1U);
    EXPECT_TRUE(outcome.diagnostics[0].starts_with(damaged.string() + ":2:7: ")) << outcome.diagnostics[0];
    EXPECT_EQ(Support::filesBelow(folder / "out.bundle"),
              (std::set<std::string>{".lumora-bundle", "Info.plist", "Base.lproj/A.strings"}));
    // The folder has only `source` and the bundle: no staged folder is left.
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);

    fs::remove(damaged);
    folder.write("source/Base.lproj/A.strings", "a = better;");
    EXPECT_EQ(compile(folder / "source", (folder / "out.bundle").string() + "/").failure, "");
    EXPECT_EQ(Table::read(Support::contents(folder / "out.bundle/Base.lproj/A.strings"))->find("a"), "better");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
}

std::string svg(int width, const char* color) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width) +
           "\" height=\"4\"><path fill=\"" + color + "\" d=\"M0 0H9V9Z\"/></svg>";
}

std::vector<std::string> assetsOf(const fs::path& bundle) {
    const auto catalog = AssetCatalog::Catalog::open(bundle / "Assets.catalog");
    std::vector<std::string> names;
    for (std::size_t i = 0; catalog && i < catalog->size(); ++i)
        names.emplace_back((*catalog)[i].name());
    return names;
}

TEST(CompileBundle, LeavesOutUnreadablePictures) {
    const Support::TemporaryFolder folder;
    for (const std::string name : {"good", "bad"})
        folder.write("source/A.xcassets/" + name + ".imageset/Contents.json", R"({"images": [{"filename": "p"}]})");
    folder.write("source/A.xcassets/good.imageset/p", svg(3, "red"));
    const fs::path bad = folder.write("source/A.xcassets/bad.imageset/p", "8BPS"); // a format that is not supported
    const Outcome outcome = compile(folder / "source", folder / "out.bundle");
    EXPECT_EQ(outcome.failure, "");
    ASSERT_EQ(outcome.diagnostics.size(), 1U);
    EXPECT_TRUE(outcome.diagnostics[0].starts_with(bad.string() + ": has an unknown format"));
    EXPECT_EQ(assetsOf(folder / "out.bundle"), std::vector<std::string>{"good"});
}

TEST(CompileBundle, PrefersPicturesMadeForTheirScale) {
    const Support::TemporaryFolder folder;
    folder.write("source/A.xcassets/p.imageset/Contents.json",
                 R"({"images": [{"filename": "1.svg", "scale": "1x"}, {"filename": "2.svg", "scale": "2x"},
                     {"filename": "any.svg"}], "properties": {"preserves-vector-representation": true}})");
    for (const auto& [name, width] : {std::pair("1", 10), std::pair("2", 40), std::pair("any", 50)})
        folder.write("source/A.xcassets/p.imageset/" + std::string(name) + ".svg", svg(width, "red"));
    EXPECT_EQ(compile(folder / "source", folder / "out.bundle").diagnostics.size(), 0U);
    const auto catalog = AssetCatalog::Catalog::open(folder / "out.bundle/Assets.catalog");
    ASSERT_TRUE(catalog);
    const AssetCatalog::Entry entry = (*catalog)[0];
    ASSERT_EQ(entry.variants(), 3U);
    const std::uint32_t widths[] = {10, 40, 30}; // at scale 3 the first drawing is used
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(entry.picture(i).width, widths[i]) << i;
}

fs::file_time_type timeOf(const fs::path& file) {
    return fs::last_write_time(file);
}
void setYesterday(const fs::path& folder) {
    const auto yesterday = fs::file_time_type::clock::now() - std::chrono::hours(24);
    for (const std::string& file : Support::filesBelow(folder))
        fs::last_write_time(folder / file, yesterday);
}

// A compile that reuses the last one gives the same result, and unchanged files keep their modification time.
TEST(CompileBundle, ReusesTheLastCompile) {
    const Support::TemporaryFolder folder;
    const fs::path bundle = folder / "out.bundle", catalog = bundle / "Assets.catalog";
    folder.write("source/Base.lproj/A.strings", "a = b;");
    folder.write("source/de.lproj/A.strings", "a = \"ü\";");
    for (const std::string name : {"one", "two"}) {
        folder.write("source/A.xcassets/" + name + ".imageset/Contents.json", R"({"images": [{"filename": "p"}]})");
        folder.write("source/A.xcassets/" + name + ".imageset/p", svg(3, "red"));
    }
    const auto compileAndCompare = [&](int line) {
        EXPECT_EQ(compile(folder / "source", bundle).failure, "") << "line " << line;
        EXPECT_EQ(compile(folder / "source", folder / "fresh.bundle").failure, "") << "line " << line;
        for (const std::string& file : Support::filesBelow(folder / "fresh.bundle"))
            EXPECT_EQ(Support::contents(bundle / file), Support::contents(folder / "fresh.bundle" / file))
                << "line " << line << ": " << file;
        fs::remove_all(folder / "fresh.bundle");
    };
    compileAndCompare(__LINE__);
    setYesterday(bundle);
    const auto yesterday = timeOf(catalog);
    folder.write("source/Base.lproj/A.strings", "a = c;");
    compileAndCompare(__LINE__);
    EXPECT_EQ(timeOf(catalog), yesterday);
    EXPECT_EQ(timeOf(bundle / "Info.plist"), yesterday);
    EXPECT_EQ(timeOf(bundle / "de.lproj/A.strings"), yesterday);
    EXPECT_NE(timeOf(bundle / "Base.lproj/A.strings"), yesterday);
    EXPECT_EQ(fs::hard_link_count(catalog), 1U); // the old bundle, which had a hard link to the file, is removed

    folder.write("source/A.xcassets/two.imageset/p", svg(3, "tan")); // has as many bytes as before
    compileAndCompare(__LINE__);
    EXPECT_NE(timeOf(catalog), yesterday);
    folder.write("source/A.xcassets/two.imageset/p", svg(3, "red"));
    compileAndCompare(__LINE__);

    // A changed table or catalog is not reused, nor is the list of compiled files if it has invalid numbers or is cut.
    std::string table = Support::contents(bundle / "de.lproj/A.strings");
    table.back() = static_cast<char>(~table.back());
    folder.write("out.bundle/de.lproj/A.strings", table);
    std::string bytes = Support::contents(catalog);
    for (std::size_t place = bytes.size() / 4; place < bytes.size(); place += 7)
        bytes[place] = static_cast<char>(~bytes[place]);
    folder.write("out.bundle/Assets.catalog", bytes);
    compileAndCompare(__LINE__);
    folder.write("out.bundle/.lumora-bundle", "Made by lumora compile.\n0 1 2\n\n" + std::string(40, '0') +
                                                  " 1 1 1 1 1 1 99999999999999999999 1 0\ntable 0 g\n");
    compileAndCompare(__LINE__);
    const std::string list = Support::contents(bundle / ".lumora-bundle"); // its end lists the scales of one drawing
    folder.write("out.bundle/.lumora-bundle", list.substr(0, list.rfind('\n', list.size() - 2) + 1));
    compileAndCompare(__LINE__);
}

TEST(CompileBundle, ReplacesNothingButABundle) {
    const Support::TemporaryFolder folder;
    folder.write("source/Base.lproj/A.strings", "a = b;");
    folder.write("photos/one", "dear");
    const std::string photos = folder / "photos";
    EXPECT_EQ(compile(folder / "source", photos).failure, photos + ": already exists and is not a compiled bundle");
    EXPECT_EQ(Support::contents(folder / "photos/one"), "dear");
    // A source that looks like a bundle is not replaced either.
    folder.write("source/Info.plist", "<plist><dict/></plist>");
    for (const fs::path& out : {folder / "source", folder.path()})
        EXPECT_TRUE(compile(folder / "source", out).failure.starts_with(out.string() + ": is or contains the source "));
    EXPECT_EQ(Support::contents(folder / "source/Base.lproj/A.strings"), "a = b;");
    EXPECT_EQ(compile(folder / "none", folder / "out").diagnostics,
              std::vector{(folder / "none").string() + ": is not a folder of resources"});
    EXPECT_FALSE(fs::exists(folder / "out"));
    EXPECT_NE(compile(folder / "source", folder / "none/out.bundle").failure, "");
}

TEST(CompileBundle, RejectsLinksThatLeadOut) {
    const Support::TemporaryFolder folder;
    const fs::path secret = folder.write("elsewhere/T.strings", "a = secret;");
    folder.write("source/Base.lproj/T.strings", "a = b;");
    const fs::path links[] = {"source/Info.plist", "source/Base.lproj/U.strings", "source/de.lproj"};
    for (const fs::path& link : links) {
        const fs::path place = folder.path() / link;
        fs::create_symlink(link.extension() == ".lproj" ? secret.parent_path() : secret, place);
        const Outcome outcome = compile(folder / "source", folder / "out.bundle");
        const std::string message = outcome.failure + (outcome.diagnostics.empty() ? "" : outcome.diagnostics[0]);
        EXPECT_TRUE(message.ends_with(": is a link that leads out of the source")) << link << message;
        EXPECT_FALSE(fs::exists(folder / "out.bundle"));
        fs::remove(place);
    }
    // A link between two languages inside the source is allowed.
    fs::create_symlink("Base.lproj", folder / "source/en.lproj");
    EXPECT_EQ(compile(folder / "source", folder / "out.bundle").failure, "");
    EXPECT_EQ(Table::read(Support::contents(folder / "out.bundle/en.lproj/T.strings"))->find("a"), "b");
}

std::set<std::string> staged(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().filename().native().find(".staged-") != std::string::npos)
            names.insert(entry.path().filename());
    return names;
}

TEST(CompileBundle, RemovesOnlyFoldersOfKilledCompiles) {
    const Support::TemporaryFolder folder;
    const fs::path source = folder / "source", bundle = folder / "out.bundle";
    folder.write("source/Base.lproj/A.strings", "a = b;");
    EXPECT_EXIT(compile(source, bundle, [](auto, auto, auto) { ::raise(SIGKILL); }), testing::KilledBySignal(SIGKILL),
                "");
    ASSERT_EQ(staged(folder.path()).size(), 1U);

    fs::create_directory(folder / "out.bundle.staged-killed"); // killed before it was marked
    // Kept: a copy, the staged folder of another bundle, one without the mark, and a link to another folder.
    const std::set<std::string> kept = {"out.bundle.staged-backup2", "out2.bundle.staged-abcdef",
                                        "out.bundle.staged-abcdef", "out.bundle.staged-ABCDEF"};
    for (const std::string name : {"out.bundle.staged-backup2", "out2.bundle.staged-abcdef", "dear"})
        folder.write(name + "/.lumora-bundle", "");
    folder.write("out.bundle.staged-abcdef/A", "");
    fs::create_directory_symlink("dear", folder / "out.bundle.staged-ABCDEF");

    // The staged folder of a running compile is not removed either.
    std::size_t living = 0;
    const Outcome outer = compile(source, bundle, [&](auto, auto, auto) {
        EXPECT_EQ(compile(source, bundle).failure, "");
        living = staged(folder.path()).size() - kept.size();
    });
    EXPECT_EQ(outer.failure, "");
    EXPECT_EQ(living, 1U);
    EXPECT_EQ(staged(folder.path()), kept);
    EXPECT_TRUE(fs::exists(folder / "dear/.lumora-bundle"));
    EXPECT_EQ(Support::filesBelow(bundle).size(), 3U);
}

// With few free descriptors a compile succeeds, or fails with an error and leaves nothing behind; with 12 it succeeds.
TEST(CompileBundle, RunsOutOfDescriptors) {
    const Support::TemporaryFolder folder;
    folder.write("source/Base.lproj/A.strings", "a = b;");
    folder.write("source/A.xcassets/p.imageset/Contents.json", R"({"images": [{"filename": "p"}]})");
    folder.write("source/A.xcassets/p.imageset/p", svg(3, "red"));
    const fs::path bundle = folder / "out.bundle";
    ASSERT_EQ(compile(folder / "source", bundle).diagnostics,
              std::vector<std::string>()); // from now on, what is opened once per process is open
    int highest = 0;
    for (const fs::directory_entry& one : fs::directory_iterator("/proc/self/fd"))
        highest = std::max(highest, std::stoi(one.path().filename()));
    std::vector<Runtime::Descriptor> gaps; // filled, so that the limit determines the number of free descriptors
    do
        gaps.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    while (gaps.back().number() < highest);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    std::size_t failures = 0;
    for (rlim_t available = 0; available < 16; ++available) {
        const rlimit lower{.rlim_cur = static_cast<rlim_t>(gaps.back().number()) + 1 + available,
                           .rlim_max = limit.rlim_max};
        ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &lower), 0);
        const Outcome outcome = compile(folder / "source", bundle);
        ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
        const bool isDone = outcome.failure.empty() && outcome.diagnostics.empty();
        failures += isDone ? 0 : 1;
        EXPECT_TRUE(isDone || available < 12) << available << outcome.failure;
        EXPECT_EQ(assetsOf(bundle), std::vector<std::string>{"p"}) << available;
        EXPECT_EQ(staged(folder.path()), std::set<std::string>()) << available;
    }
    EXPECT_NE(failures, 0U);
}

TEST(CompileBundle, GivesTheSameBytesForTheSameSources) {
    const Support::TemporaryFolder folder;
    folder.write("source/Base.lproj/A.strings", "b = 1; a = 2; c = \"ünï\";");
    ASSERT_EQ(compile(folder / "source", folder / "1.bundle").failure, "");
    ASSERT_EQ(compile(folder / "source", folder / "2.bundle").failure, "");
    for (const std::string& file : Support::filesBelow(folder / "1.bundle"))
        EXPECT_EQ(Support::contents(folder / "1.bundle" / file), Support::contents(folder / "2.bundle" / file)) << file;
}

} // namespace
