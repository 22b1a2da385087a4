#include "Generator/Generator.h"

#include "Generator/AssetsEmitter.h"
#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include "Generator/ModuleTemplates.h"
#include "Generator/Namer.h"
#include "Generator/StringsEmitter.h"
#include <algorithm>
#include <iterator>
#include <set>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::LanguageTexts;
using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;

namespace {

// Adds one note that counts the keys that are only in translations.
void reportTranslatedOnly(const Source& source, Diagnostics& diagnostics) {
    std::size_t count = 0;
    const SourceEntry* first = nullptr;
    for (const SourceTable& table : source.tables) {
        std::set<std::string_view> keys;
        const LanguageTexts* own = table.find(source.developmentLanguage);
        const LanguageTexts* base = table.find(SourceBundle::baseLanguage);
        for (const LanguageTexts& texts : table.languages) {
            if (&texts == own || &texts == base)
                continue;
            const SourceEntry* last = nullptr; // the entry of `own` found last: the next key is usually the next entry
            for (const SourceEntry& entry : texts.entries()) {
                const SourceEntry* known = own == nullptr ? nullptr : own->findAfter(last, entry.key);
                last = known == nullptr ? last : known;
                if (known == nullptr && (base == nullptr || base->find(entry.key) == nullptr) &&
                    keys.insert(entry.key).second)
                    first = first == nullptr ? &entry : first;
            }
        }
        count += keys.size();
    }
    if (first != nullptr)
        diagnostics.add(Severity::note, first->error(std::to_string(count) +
                                                     (count == 1 ? " key is only in translations and has no accessor: "
                                                                 : " keys are only in translations and have no "
                                                                   "accessor; the first is ") +
                                                     quote(first->key)));
}

std::string moduleHeader(const Options& options) {
    CodeWriter code(options.module);
    code.add(moduleHeaderBegin);
    if (!options.headers.empty())
        code.add("");
    code.addIncludes(options.headers);
    code.add("\n#endif // C++20");
    return code.take();
}

// Adds a line to TREE.h that changes whenever a generated header that it includes changes: one directly in the folder
// TREE, or one of `others`.
void addFingerprint(const std::string& tree, const std::vector<std::string>& others, std::vector<OutputFile>& files) {
    std::vector<std::string_view> headers;
    for (const OutputFile& file : files)
        if (file.path.parent_path() == tree || std::ranges::find(others, file.path.native()) != others.end())
            headers.push_back(file.content);
    for (OutputFile& file : files)
        if (file.path == tree + ".h")
            file.content += "\n// Fingerprint of these headers: " + fingerprint(headers) + "\n";
}

} // namespace

void check(const Options& options, Diagnostics& diagnostics) {
    const auto fail = [&](std::string message) { diagnostics.add(Severity::error, {.message = std::move(message)}); };
    if (!Namer::isModuleName(options.module))
        fail("the module's name must be a C++ identifier that is not reserved: " + quote(options.module));
    std::vector<std::string> headers = options.includes;
    headers.insert(headers.end(), options.headers.begin(), options.headers.end());
    for (const std::string& header : headers)
        if (header.find_first_of("\"\\\n\r") != std::string::npos)
            fail("cannot be included: " + quote(header));
    if (options.shards == 0 || options.shards > maxShards)
        fail("the accessors can be split into 1 to " + std::to_string(maxShards) + " sources");
}

Model modelOf(const Source& source, const Options& options, Diagnostics& diagnostics) {
    Model model;
    NamesFile names = options.names.empty() ? NamesFile() : NamesFile::read(options.names, diagnostics);
    model.tables = accessorTables(source, names, diagnostics);
    reportTranslatedOnly(source, diagnostics);
    model.assets = SourceBundle::sourceAssets(source.catalogs, diagnostics);
    model.assetTree = assetTreeOf(model.assets, diagnostics);
    return model;
}

std::vector<OutputFile> filesOf(const Model& model, const Options& options) {
    std::vector<OutputFile> files = emitStrings(model.tables, options);
    std::ranges::move(emitAssets(model.assetTree.constants, options), std::back_inserter(files));
    files.push_back({options.module + ".h", moduleHeader(options)});
    // lumora_add_module tells the build system only of the headers NAMEStrings.h and NAMEAsset.h, so they must change
    // when one that they include does.
    const std::string& name = options.module;
    addFingerprint(name + "Strings", {}, files);
    addFingerprint(name + "Asset", {name + "AssetRecords.h", name + "Resources.h"}, files);
    return files;
}

Runtime::Result<void> writeModule(const Model& model, const Options& options, const std::filesystem::path& folder) {
    // These folders may contain stale files even if nothing new is written to them.
    const std::filesystem::path texts = options.module + "Strings", constants = options.module + "Asset";
    return writeFiles(folder, filesOf(model, options), {texts, texts / "Internal", constants, constants / "Internal"});
}

} // namespace Generator
