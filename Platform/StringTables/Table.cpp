#include "StringTables/internal/Table.h"

#include "Runtime/internal/File.h"
#include "StringTables/internal/Comments.h"
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"
#include <numeric>

namespace StringTables {

namespace internal {

std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 60;
    const std::string_view shown = cutToSize(text, longest);
    std::string out = "\"";
    for (const char c : shown)
        out += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    return out + (shown.size() < text.size() ? "…\"" : "\"");
}

Location Locator::locate(std::size_t offset) noexcept {
    if (!countsLines_)
        return {};
    const char* at = source_.data() + at_;
    const char* const end = source_.data() + offset;
    // Of a CR LF only the LF ends a line. mark[1] may be the NUL that follows the source.
    for (const char* mark = findEither(at, end, '\n', '\r'); mark != end; mark = findEither(mark + 1, end, '\n', '\r'))
        if (*mark == '\n' || mark[1] != '\n') {
            ++location_.line;
            location_.column = 1;
            at = mark + 1;
        }
    location_.column += countCharacters({at, end});
    at_ = offset;
    return location_;
}

Runtime::Error Locator::error(std::size_t offset, std::string message) {
    if (!countsLines_)
        return {"byte " + std::to_string(offset) + ": " + message, {}};
    const Location at = locate(offset);
    return {std::move(message), {}, at.line, at.column};
}

Runtime::Error Contents::errorAt(std::size_t offset, std::string message) const {
    return Locator(*this).error(offset, std::move(message));
}

void Contents::note(std::string_view before, std::string_view key, std::string_view after, std::size_t offset) {
    if (foundNotes.size() == Table::maxNotes)
        ++notesLeftOut;
    else
        foundNotes.push_back(
            {static_cast<std::uint32_t>(offset), std::string(before).append(quoted(key)).append(after)});
}

void Contents::noteRepeated(std::string_view key, std::string_view what, std::size_t offset) {
    const std::size_t before = foundNotes.size();
    note("the key ", key, std::string(" appears again; ").append(what), offset);
    if (foundNotes.size() != before)
        foundNotes.back().repeatedKey.emplace(key);
}

void Contents::noteSkipped(std::string_view key, std::string_view what, std::size_t offset) {
    note("the value of ", key, std::string(" is ").append(what).append(", not a text; skipped"), offset);
}

void Contents::addSkipped(std::string_view key, std::string_view what, std::size_t offset) {
    noteSkipped(key, what, offset);
    hasSkipped = true;
    if (!add(key, noText, offset) && !skippedWhenFull)
        skippedWhenFull = static_cast<std::uint32_t>(offset);
}

void Contents::noteReplaced(const Entry& entry, const Entry& later) {
    if (hasText(later))
        noteRepeated(later.key, "this text is used", later.offset);
    else if (hasText(entry))
        note("the key ", later.key, " appears again without a text; the earlier text is dropped", later.offset);
}

void Contents::finish() {
    index.build(entries, [this](Entry& entry, const Entry& later) {
        noteReplaced(entry, later);
        entry = later;
    });
    if (hasSkipped && std::erase_if(entries, [](const Entry& entry) { return !hasText(entry); }) != 0)
        index.build(entries, [](Entry&, const Entry&) {});
    std::ranges::stable_sort(foundNotes, {}, &FoundNote::offset);
    Locator locator(*this);
    for (FoundNote& found : foundNotes)
        notes.push_back({locator.error(found.offset, std::move(found.message)), std::move(found.repeatedKey)});
    if (notesLeftOut != 0)
        notes.push_back({{.message = std::to_string(notesLeftOut) + " more notes are left out"}});
    foundNotes = {};
}

namespace {

constexpr std::string_view markLittle = "\xFF\xFE", markBig = "\xFE\xFF";

// UTF-16 is recognized by its byte-order mark, or by a zero byte beside the ASCII character with which tables begin.
std::optional<ByteOrder> utf16Order(std::string_view bytes) {
    if (bytes.starts_with(markLittle))
        return ByteOrder::little;
    if (bytes.starts_with(markBig))
        return ByteOrder::big;
    if (bytes.size() < 2 || (bytes[0] == '\0') == (bytes[1] == '\0'))
        return std::nullopt;
    return bytes[0] == '\0' ? ByteOrder::big : ByteOrder::little;
}

Runtime::Result<void> toUtf8(Contents& contents, ByteOrder order) {
    const std::string bytes = std::move(contents.source);
    std::string_view units = bytes;
    if (units.starts_with(order == ByteOrder::big ? markBig : markLittle))
        units.remove_prefix(2);
    contents.isUtf8 = true;
    contents.source.assign(units.size() / 2 * 3, '\0');
    const Decoded decoded = decodeUtf16(units, order, contents.source.data());
    contents.source.resize(static_cast<std::size_t>(decoded.end - contents.source.data()));
    if (decoded.read == units.size())
        return {};
    return contents.errorAt(contents.source.size(),
                            units.size() - decoded.read == 1 ? "half a UTF-16 unit" : "a lone surrogate in UTF-16");
}

Runtime::Result<void> readForm(Contents& contents) {
    switch (contents.form) {
    case Form::binary:
        return readBinary(contents);
    case Form::xml:
        return readXml(contents);
    case Form::text:
        break;
    }
    return readText(contents);
}

Runtime::Result<void> fill(Contents& contents) {
    auto done = recognize(contents);
    if (done)
        done = readForm(contents);
    if (done && contents.skippedWhenFull)
        return contents.errorAt(*contents.skippedWhenFull, tooManyEntries);
    return done;
}

} // namespace

Runtime::Result<void> recognize(Contents& contents) {
    if (contents.source.starts_with("bplist0")) { // the readers reject unknown versions, such as "01"
        contents.form = Form::binary;
        return {};
    }
    if (const auto order = utf16Order(contents.source))
        if (auto decoded = toUtf8(contents, *order); !decoded)
            return decoded;
    if (contents.source.starts_with("\xEF\xBB\xBF")) {
        contents.begin = 3;
        contents.isUtf8 = true;
    }
    // A table in text form never begins with '<'.
    const std::size_t first = contents.source.find_first_not_of(" \t\r\n", contents.begin);
    if (first != std::string::npos && contents.source[first] == '<')
        contents.form = Form::xml;
    return {};
}

} // namespace internal

namespace {

// The indices of the entries by source offset. A repeated key has the offset of its last occurrence.
std::vector<std::size_t> inSourceOrder(std::span<const Entry> entries) {
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (!std::ranges::is_sorted(entries, {}, &Entry::offset)) // a key is repeated, or the table is binary
        std::ranges::sort(order, {}, [&](std::size_t number) { return entries[number].offset; });
    return order;
}

} // namespace

Runtime::Result<Table> Table::read(std::string bytes) {
    return read(std::move(bytes), {});
}

Runtime::Result<Table> Table::readFile(const std::string& path, std::string_view bundle) {
    auto bytes = Runtime::readFile(path, maxBytes, bundle);
    if (!bytes)
        return std::move(bytes.error());
    return read(*std::move(bytes), path);
}

Runtime::Result<Table> Table::read(std::string bytes, const std::string& file) {
    if (bytes.size() > maxBytes)
        return Runtime::Error{"the table is larger than " + std::to_string(maxBytes) + " bytes", file};
    auto contents = std::make_unique<internal::Contents>(std::move(bytes));
    if (auto filled = internal::fill(*contents); !filled) {
        filled.error().file = file;
        return std::move(filled.error());
    }
    contents->finish();
    for (Runtime::Error& note : contents->notes)
        note.file = file;
    Table table;
    table.contents_ = std::move(contents);
    return table;
}

Table::Table() = default;
Table::Table(Table&&) noexcept = default;
Table& Table::operator=(Table&&) noexcept = default;
Table::~Table() = default;

std::optional<std::string_view> Table::find(std::string_view key) const noexcept {
    if (!contents_)
        return std::nullopt;
    const std::size_t found = contents_->index.find(key, contents_->entries);
    return found == internal::Index::none ? std::nullopt : std::optional(contents_->entries[found].text);
}

std::span<const Entry> Table::entries() const noexcept {
    return contents_ ? std::span<const Entry>(contents_->entries) : std::span<const Entry>();
}

std::span<const TableNote> Table::notes() const noexcept {
    return contents_ ? std::span<const TableNote>(contents_->notes) : std::span<const TableNote>();
}

std::vector<Location> Table::locations() const {
    const std::span<const Entry> all = entries();
    std::vector<Location> places(all.size());
    if (contents_)
        for (internal::Locator locator(*contents_); const std::size_t number : inSourceOrder(all))
            places[number] = locator.locate(all[number].offset);
    return places;
}

std::vector<std::string> Table::comments() const {
    const std::span<const Entry> all = entries();
    std::vector<std::string> ordered(all.size());
    if (!contents_ || contents_->form == Form::binary)
        return ordered;
    const std::vector<std::size_t> order = inSourceOrder(all);
    std::vector<std::size_t> offsets;
    offsets.reserve(order.size());
    for (const std::size_t number : order)
        offsets.push_back(all[number].offset);
    std::vector<std::string> found = internal::commentsOf(offsets, *contents_);
    for (std::size_t i = 0; i < order.size(); ++i)
        ordered[order[i]] = std::move(found[i]);
    return ordered;
}

Form Table::form() const noexcept {
    return contents_ ? contents_->form : Form::text;
}

} // namespace StringTables
