// lumora table: converts a string table to another form, or to JSON.
#include "Program/Command.h"

#include "Runtime/internal/SystemError.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <CLI/CLI.hpp>
#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>

namespace Tools {

namespace {

using StringTables::Form;
using StringTables::Table;

enum class OutputForm { json, strings, xml, binary };

const std::map<std::string, OutputForm> outputForms = {{"json", OutputForm::json},
                                                       {"strings", OutputForm::strings},
                                                       {"xml", OutputForm::xml},
                                                       {"binary", OutputForm::binary}};

struct TableOptions {
    std::string file;
    std::string output = "-";
    std::string form = "json";
};

// Writes the members one by one, because nlohmann::json would copy each text that several entries share.
Runtime::Result<std::string> json(const Table& table) {
    const auto literal = [](std::string_view text) { return nlohmann::json(text).dump(); };
    if (auto fits = StringTables::checkWrittenSize(StringTables::sizeOf(table.entries())); !fits)
        return std::move(fits.error());
    std::string out = "{";
    for (const StringTables::Entry& entry : table.entries()) {
        out.append(out.size() == 1 ? "\n  " : ",\n  ")
            .append(literal(entry.key))
            .append(": ")
            .append(literal(entry.text));
        if (auto fits = StringTables::checkWrittenSize(out.size()); !fits)
            return std::move(fits.error());
    }
    return out.append(out.size() == 1 ? "}\n" : "\n}\n");
}

Runtime::Result<std::string> written(const Table& table, OutputForm form) {
    switch (form) {
    case OutputForm::strings:
        return StringTables::write(table.entries(), Form::text, table.comments());
    case OutputForm::xml:
        return StringTables::write(table.entries(), Form::xml, table.comments());
    case OutputForm::binary:
        return StringTables::write(table.entries(), Form::binary);
    case OutputForm::json:
        break;
    }
    return json(table);
}

// Reads the stream to its end. Errors do not name the file; runTable() adds its name.
Runtime::Result<std::string> readToEnd(std::FILE* stream) {
    std::string bytes;
    std::array<char, 65536> part;
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), stream)) {
        bytes.append(part.data(), count);
        if (bytes.size() > Table::maxBytes)
            return Runtime::Error{.message = "is larger than " + std::to_string(Table::maxBytes) + " bytes",
                                  .file = {}};
    }
    if (std::ferror(stream) != 0)
        return Runtime::systemError({}, "cannot be read");
    return bytes;
}

Runtime::Result<Table> readTable(const std::string& file) {
    std::error_code failed;
    const auto type = std::filesystem::status(file, failed).type();
    const bool isStandardInput = file == "-";
    // Table::readFile() accepts only regular files.
    if (!isStandardInput && type != std::filesystem::file_type::fifo && type != std::filesystem::file_type::character)
        return Table::readFile(file);
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> stream(
        isStandardInput ? stdin : std::fopen(file.c_str(), "rb"), &std::fclose);
    if (stream == nullptr)
        return Runtime::systemError({}, "cannot be read");
    auto bytes = readToEnd(stream.get());
    return bytes ? Table::read(*std::move(bytes)) : std::move(bytes.error());
}

Exit runTable(const TableOptions& options) {
    const std::string name = options.file == "-" ? "standard input" : options.file;
    auto table = readTable(options.file);
    if (!table) {
        table.error().file = name;
        return fail(table.error());
    }
    for (Runtime::Error skipped : table->notes()) {
        skipped.file = name;
        note(skipped);
    }
    auto out = written(*table, outputForms.at(options.form));
    if (!out) {
        out.error().file = name;
        return fail(out.error());
    }
    return write(options.output, *out);
}

} // namespace

void addTableCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<TableOptions>();
    CLI::App* command = program.add_subcommand("table", "Convert a string table to another form.");
    command
        ->add_option("FILE", options->file,
                     "The table: quoted text, XML or binary, detected from its content; - is standard input")
        ->required()
        ->check(notEmpty());
    command->add_option("--to", options->form, "The form to write")
        ->check(CLI::IsMember({"json", "strings", "xml", "binary"}))
        ->capture_default_str();
    command->add_option("-o,--output", options->output, "Where to write; - is standard output")
        ->check(notEmpty())
        ->capture_default_str();
    command->callback([options, &exit] { exit = runTable(*options); });
}

} // namespace Tools
