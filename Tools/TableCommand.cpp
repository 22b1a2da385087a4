// lumora table: a string table read in any form and written in another.
#include "Tools/Command.h"

#include "Runtime/File.h"
#include "StringTables/Table.h"
#include "StringTables/Writer.h"
#include <CLI/CLI.hpp>
#include <memory>
#include <nlohmann/json.hpp>

namespace Tools {

namespace {

using StringTables::Form;
using StringTables::Table;

enum class Output { json, strings, xml, binary };

const std::map<std::string, Output> outputs = {
    {"json", Output::json}, {"strings", Output::strings}, {"xml", Output::xml}, {"binary", Output::binary}};

struct TableOptions {
    std::string file;
    std::string output;
    std::string form = "json";
};

std::string json(const Table& table) {
    nlohmann::ordered_json texts = nlohmann::ordered_json::object();
    // Keys are there once each; looking for them again would take quadratic time in an ordered object.
    auto& members = texts.get_ref<nlohmann::ordered_json::object_t&>();
    for (const StringTables::Entry& entry : table.entries())
        members.emplace_back(std::string(entry.key), std::string(entry.text));
    return texts.dump(2) + "\n";
}

Runtime::Result<std::string> written(const Table& table, Output form) {
    switch (form) {
    case Output::strings:
        return StringTables::write(table.entries(), Form::text);
    case Output::xml:
        return StringTables::write(table.entries(), Form::xml);
    case Output::binary:
        return StringTables::write(table.entries(), Form::binary);
    case Output::json:
        break;
    }
    return json(table);
}

Exit runTable(const TableOptions& options) {
    const auto table = Table::readFile(options.file);
    if (!table)
        return fail(table.error());
    for (const Runtime::Error& skipped : table->notes())
        note(skipped.text());
    auto out = written(*table, outputs.at(options.form));
    if (!out) {
        out.error().file = options.file;
        return fail(out.error());
    }
    if (options.output.empty())
        return print(*out);
    const auto done = Runtime::writeFile(options.output, *out);
    return done ? Exit::done : fail(done.error());
}

} // namespace

void addTableCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<TableOptions>();
    CLI::App* command = program.add_subcommand("table", "Read a string table of any form and write it in another.");
    command->add_option("FILE", options->file, "The table: quoted text, XML or binary, told by its content")
        ->required();
    command->add_option("--to", options->form, "The form to write")
        ->check(CLI::IsMember({"json", "strings", "xml", "binary"}))
        ->capture_default_str();
    command->add_option("-o,--output", options->output, "Where to write (default: standard output)");
    command->callback([options, &exit] { exit = runTable(*options); });
}

} // namespace Tools
