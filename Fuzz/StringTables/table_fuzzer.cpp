// Reads any bytes as a table. What is read is found by its keys, and is the same after a way through every form.
#include "StringTables/Table.h"
#include "StringTables/Writer.h"
#include <cstdlib>
#include <ranges>

namespace {

using StringTables::Entry;
using StringTables::Form;
using StringTables::Table;

void require(bool holds) {
    if (!holds)
        std::abort();
}

void requireSame(const Table& table, const std::string& bytes, Form form) {
    const auto again = Table::read(bytes);
    require(static_cast<bool>(again));
    require(again->form() == form);
    require(again->notes().empty());
    require(std::ranges::equal(table.entries(), again->entries(),
                               [](const Entry& a, const Entry& b) { return a.key == b.key && a.text == b.text; }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto table = Table::read(std::string(reinterpret_cast<const char*>(data), size));
    if (!table) {
        require(!table.error().message.empty());
        return 0;
    }
    for (const Entry& entry : table->entries()) {
        require(table->find(entry.key) == entry.text);
        require((table->locate(entry).line == 0) == (table->form() == Form::binary));
    }
    for (const Form form : {Form::text, Form::xml, Form::binary}) {
        const auto bytes = StringTables::write(table->entries(), form);
        require(bytes || form == Form::xml); // the only form that cannot hold every text
        if (bytes)
            requireSame(*table, *bytes, form);
    }
    return 0;
}
