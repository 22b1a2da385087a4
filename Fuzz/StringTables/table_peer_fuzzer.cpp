// Compares our reader of XML and binary tables with libplist: a table that both accept has the same texts for both, and
// libplist reads what we write. Known differences are ignored:
//  - libplist returns C strings, which end at a NUL, and stops the process if a key contains one;
//  - it keeps values that are not texts, and in a binary table all values of repeated keys;
//  - it reads XML as UTF-8 regardless of the declaration, and does not convert line ends;
//  - it takes quotation marks in a processing instruction for those of a string and ignores a "?>" between them.
#include "Checks.h"
#include <map>
#include <memory>
#include <plist/plist.h>
#include <set>

namespace {

using Checks::Form;
using Texts = std::map<std::string, std::optional<std::string>>; // no value: not a text
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, decltype(&plist_free)>;
using Chars = std::unique_ptr<char, decltype(&std::free)>;

// The texts of a dictionary by key; no value if a key is repeated.
std::optional<Texts> texts(plist_t dict) {
    plist_dict_iter found = nullptr;
    plist_dict_new_iter(dict, &found);
    const std::unique_ptr<void, decltype(&std::free)> iterator(found, std::free);
    Texts out;
    std::set<std::string> keys;
    for (;;) {
        char *key = nullptr, *text = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dict, found, &key, &value);
        const Chars keptKey(key, std::free);
        if (!value)
            return out;
        if (!keys.emplace(key).second)
            return std::nullopt;
        if (plist_get_node_type(value) != PLIST_STRING) {
            out.emplace(key, std::nullopt);
            continue;
        }
        plist_get_string_val(value, &text);
        const Chars keptText(text, std::free);
        out.emplace(key, text);
    }
}

std::optional<Texts> theirs(std::string_view bytes) {
    plist_t read = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &read);
    const Node root(read, plist_free);
    return root && plist_get_node_type(read) == PLIST_DICT ? texts(read) : std::nullopt;
}

bool libplistMayDiffer(std::string_view bytes, Form form) {
    const std::size_t afterDeclaration = bytes.starts_with("<?xml ") ? 2 : 0; // after its "<?"
    return form == Form::xml && (bytes.find('\r') != bytes.npos || bytes.find("encoding") != bytes.npos ||
                                 bytes.find("<?", afterDeclaration) != bytes.npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (Checks::isReadAs(Form::text, bytes))
        return 0;
    const auto table = Checks::Table::read(std::string(bytes));
    if (!table)
        return 0;
    if (table->form() == Form::binary && !table->notes().empty())
        return 0; // the key of a value that was skipped may contain a NUL
    Texts ours;
    for (const Checks::Entry& entry : table->entries()) {
        if (entry.key.find('\0') != entry.key.npos || entry.text.find('\0') != entry.text.npos)
            return 0;
        ours.emplace(entry.key, entry.text);
    }
    if (!libplistMayDiffer(bytes, table->form()))
        if (const auto others = theirs(bytes)) {
            Texts expected = ours;
            for (const auto& [key, text] : *others)
                if (!text) // we skip values that are not texts
                    expected[key] = std::nullopt;
            require(expected == *others);
        }
    for (const Form form : {Form::xml, Form::binary})
        if (const auto written = StringTables::write(table->entries(), form))
            require(theirs(*written) == ours);
    return 0;
}
