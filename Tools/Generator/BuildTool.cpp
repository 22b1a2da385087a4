// Generates the project's own tree during its build, when the program `lumora` is not there yet.
#include "Generator/Generator.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>

namespace {

struct CommandLine {
    std::string_view source;
    std::string_view output;
    Generator::Options options;
};

std::optional<CommandLine> read(int argc, char** argv) {
    if (argc < 2 || argc % 2 != 0) // SOURCE, then options and their values
        return std::nullopt;
    CommandLine line{.source = argv[1], .output = {}, .options = {}};
    for (int at = 2; at < argc; at += 2) {
        const std::string_view option = argv[at];
        const std::string_view value = argv[at + 1];
        if (option == "--module")
            line.options.module = value;
        else if (option == "-o")
            line.output = value;
        else if (option == "--include")
            line.options.includes.emplace_back(value);
        else if (option != "--shards" ||
                 std::from_chars(value.data(), value.data() + value.size(), line.options.shards).ec != std::errc())
            return std::nullopt;
    }
    return line.output.empty() ? std::nullopt : std::optional(line);
}

} // namespace

int main(int argc, char** argv) {
    const std::optional<CommandLine> line = read(argc, argv);
    if (!line) {
        std::fputs("usage: lumora-generate SOURCE --module NAME -o DIR [--include HEADER]... [--shards N]\n", stderr);
        return 2;
    }
    SourceBundle::Diagnostics diagnostics;
    const auto written = Generator::generateModule(line->source, line->options, line->output, diagnostics);
    for (const SourceBundle::Diagnostic& diagnostic : diagnostics.all())
        std::fprintf(stderr, "%s\n", diagnostic.what.text().c_str());
    if (diagnostics.hasErrors())
        return 2;
    if (!written)
        std::fprintf(stderr, "%s\n", written.error().text().c_str());
    return written ? 0 : 2;
}
