// lumora accessors: lists what lumora generate makes from a source, and what it leaves out.
#include "Program/Command.h"

#include "Generator/CodeText.h"
#include "Generator/Generator.h"
#include "Program/SourceArguments.h"
#include <CLI/CLI.hpp>
#include <memory>
#include <nlohmann/json.hpp>

namespace Tools {

namespace {

using Generator::AccessorTable;
using Generator::Model;
using Generator::Parameter;
using nlohmann::ordered_json;
using SourceBundle::SourceAsset;
using SourceBundle::SourceEntry;

struct AccessorsOptions {
    SourceArguments source;
    Generator::Options generator;
    std::string format = "text";
};

const char* nameOf(Parameter parameter) {
    switch (parameter) {
    case Parameter::text:
        return "text";
    case Parameter::integer:
        return "integer";
    case Parameter::number:
        return "number";
    }
    return "";
}

// Lists accessors, and the keys and assets without one, as JSON objects.
class Lister {
public:
    explicit Lister(const std::string& module) : prefix_(module + "::" + module) {}

    ordered_json list(const Model& model) {
        for (const AccessorTable& table : model.tables) {
            for (const auto& entry : table.entries)
                add(table, entry);
            for (const auto& [source, reason] : table.leftOut)
                add(table, *source, nullptr, {}, reason);
        }
        for (const auto& constant : model.assetTree.constants)
            add(*constant.asset, prefix_ + "Asset::" + constant.groups + "::" + constant.name, {});
        for (const auto& [asset, reason] : model.assetTree.leftOut)
            add(*asset, nullptr, reason);
        return std::move(all_);
    }

private:
    void add(const AccessorTable& table, const Generator::NamedEntry& entry) {
        const std::string groups = entry.groups.empty() ? "" : entry.groups + "::";
        add(table, *entry.source, prefix_ + "Strings::" + table.spelling + "::" + groups + entry.name, entry.parameters,
            {});
    }

    // `accessor` is the qualified name of the entry's accessor, or null; then `reason` says why there is none.
    void add(const AccessorTable& table, const SourceEntry& entry, const ordered_json& accessor,
             const std::vector<Parameter>& parameters, const std::string& reason) {
        ordered_json json = {{"kind", "text"},
                             {"accessor", accessor},
                             {"table", table.name},
                             {"key", entry.key},
                             {"parameters", ordered_json::array()},
                             {"text", entry.text},
                             {"comment", entry.comment},
                             {"file", entry.file->path.string()},
                             {"line", entry.line}};
        for (const Parameter parameter : parameters)
            json["parameters"].push_back(nameOf(parameter));
        push(std::move(json), reason);
    }

    // An asset has the members of a text, too, so that all objects can be read in the same way.
    void add(const SourceAsset& asset, const ordered_json& accessor, const std::string& reason) {
        push({{"kind", nameOf(asset.kind)},
              {"accessor", accessor},
              {"catalog", asset.catalog},
              {"name", asset.name},
              {"parameters", ordered_json::array()},
              {"text", ""},
              {"comment", ""},
              {"file", asset.path.string()},
              {"line", 0}},
             reason);
    }

    void push(ordered_json json, const std::string& reason) {
        if (!reason.empty())
            json["reason"] = reason;
        all_.push_back(std::move(json));
    }

    std::string prefix_; // "Shop::Shop"
    ordered_json all_ = ordered_json::array();
};

std::string visible(const ordered_json& text) {
    return Generator::visibleText(text.get_ref<const std::string&>(), std::string::npos);
}

// A line with kind, accessor with its parameters (or "-"), table or catalog, key or name, and the reason if there is no
// accessor, separated by tabs.
std::string lineOf(const ordered_json& item) {
    std::string parameters;
    for (const ordered_json& parameter : item["parameters"])
        parameters.append(parameters.empty() ? "" : ", ").append(parameter.get_ref<const std::string&>());
    const bool isText = item.contains("key");
    const bool isLeftOut = item["accessor"].is_null();
    std::string line = visible(item["kind"]) + '\t';
    line += isLeftOut ? "-" : visible(item["accessor"]) + (isText ? "(" + parameters + ")" : "");
    line += '\t' + visible(item[isText ? "table" : "catalog"]) + '\t' + visible(item[isText ? "key" : "name"]);
    return line + (isLeftOut ? '\t' + visible(item["reason"]) : "") + '\n';
}

std::string textOf(const ordered_json& items) {
    std::string text;
    for (const ordered_json& item : items)
        text += lineOf(item);
    return text;
}

Exit runAccessors(AccessorsOptions& options) {
    options.generator.names = options.source.names;
    SourceBundle::Diagnostics diagnostics;
    Generator::check(options.generator, diagnostics);
    const SourceBundle::Source source = options.source.read(diagnostics);
    const Model model = Generator::modelOf(source, options.generator, diagnostics);
    const Exit reported = report(diagnostics);
    if (reported != Exit::done)
        return reported;
    const ordered_json items = Lister(options.generator.module).list(model);
    return print(options.format == "json" ? items.dump(2, ' ', false, ordered_json::error_handler_t::replace) + '\n'
                                          : textOf(items));
}

} // namespace

void addAccessorsCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<AccessorsOptions>();
    CLI::App* command =
        program.add_subcommand("accessors", "List the accessors that `lumora generate` makes from a source.");
    options->source.addTo(*command)->required();
    options->source.addNamesTo(*command);
    command->add_option("--module", options->generator.module, "The module's name, a C++ identifier")->required();
    command
        ->add_option(
            "--format", options->format,
            "text: kind, accessor or -, table or catalog, key or name, reason, separated by tabs; json: an array")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    command->callback([options, &exit] { exit = runAccessors(*options); });
}

} // namespace Tools
