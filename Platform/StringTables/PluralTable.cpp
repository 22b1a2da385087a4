#include "StringTables/internal/PluralTable.h"

#include "Runtime/internal/File.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/Comments.h"
#include "StringTables/internal/PluralKeys.h"
#include "StringTables/internal/PropertyListSink.h"
#include <algorithm>
#include <charconv>
#include <limits>
#include <numeric>

namespace StringTables {

namespace {

using internal::Contents;

// Selects the text of an entry with a `widthRule` or `deviceRule`: that for the greatest width, or that for the device
// with the lowest rank. With both rules, a text for a device is selected, because the rank of a real width is higher.
class TextChoice {
public:
    void begin(std::string_view rule) { isByWidth_ = rule == pluralKeys::widthRule; }
    void offer(std::string_view widthOrDevice, std::string_view text) {
        std::size_t rank = pluralKeys::deviceRank(widthOrDevice);
        if (isByWidth_) {
            std::size_t width = 0;
            std::from_chars(widthOrDevice.data(), widthOrDevice.data() + widthOrDevice.size(), width);
            rank = std::numeric_limits<std::size_t>::max() - width;
        }
        if (count_++ == 0 || rank < rank_) {
            rank_ = rank;
            isWidthSelected_ = isByWidth_;
            text_.assign(text);
        }
    }
    bool isMade() const noexcept { return count_ > 0; }
    const std::string& text() const noexcept { return text_; }
    // What to note about the texts that are not used, or null.
    const char* unusedNote() const noexcept {
        if (count_ < 2)
            return nullptr;
        return isWidthSelected_
                   ? " has texts for several widths; the widest is used"
                   : " has several texts for kinds of device or for widths; that for \"other\", else \"iphone\", "
                     "else the first device is used";
    }

private:
    bool isByWidth_ = false, isWidthSelected_ = false;
    std::size_t count_ = 0, rank_ = 0;
    std::string text_;
};

// Builds the entries. The dictionaries nest three deep: entries, their variables, the variables' forms.
class PluralSink final : public internal::PropertyListSink {
public:
    explicit PluralSink(Contents& contents) : contents_(contents) {}

    bool beginDictionary() override {
        if (depth_ == levels) {
            noteValue(" is a dictionary; it is skipped");
            return false;
        }
        ++depth_;
        if (depth_ == entryLevel + 1)
            beginEntry();
        else if (depth_ == variableLevel + 1)
            beginVariable();
        return true;
    }

    void endDictionary() override {
        if (depth_ == variableLevel + 1)
            endVariable();
        else if (depth_ == entryLevel + 1)
            endEntry();
        --depth_;
    }

    const char* key(std::string_view text, std::size_t offset) override {
        if (++values_ > Table::maxEntries)
            return internal::tooManyEntries;
        keys_[depth_ - 1].assign(text);
        offsets_[depth_ - 1] = offset;
        return countBytes(text);
    }

    const char* string(std::string_view text) override {
        if (depth_ == entryLevel)
            skipEntry(" is a text, not a plural format; it is skipped");
        else if (depth_ == variableLevel)
            takeFormat(text);
        else
            takeForm(text);
        return countBytes(text);
    }

    void other(const char* what) override {
        const std::string why = std::string(" is ").append(what).append("; it is skipped");
        depth_ == entryLevel ? skipEntry(why) : noteValue(why);
    }

    std::vector<PluralEntry> takeEntries() {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (keyOffsets_[i] != dropped) {
                std::swap(entries_[kept], entries_[i]);
                std::swap(keyOffsets_[kept++], keyOffsets_[i]);
            }
        entries_.resize(kept);
        keyOffsets_.resize(kept);
        return std::move(entries_);
    }
    // Of the entries that takeEntries() returned.
    const std::vector<std::size_t>& keyOffsets() const noexcept { return keyOffsets_; }

private:
    // The level of a key is the number of dictionaries around it.
    static constexpr std::size_t entryLevel = 1, variableLevel = 2, levels = 3;
    static constexpr std::string_view replaces = " appears again; this one is used";

    // Returns an error message when there are too many.
    const char* countBytes(std::string_view text) noexcept {
        bytes_ += text.size();
        return bytes_ > PluralTable::maxTextBytes ? "the table has too much text" : nullptr;
    }

    const std::string& key() const noexcept { return keys_[depth_ - 1]; }
    // Adds a note about the value of the current key.
    void noteValue(std::string_view what) { contents_.note("the value of ", key(), what, offsets_[depth_ - 1]); }
    // The last value of a key counts, even if it is not a plural.
    void skipEntry(std::string_view what) {
        noteValue(what);
        drop();
    }
    // Drops the earlier entry with the current key, if there is one.
    void drop() {
        const auto known = indices_.find(keys_[0]);
        if (known == indices_.end() || keyOffsets_[known->second] == dropped)
            return;
        keyOffsets_[known->second] = dropped;
        noteEntry(" appears again without a plural; the earlier one is dropped");
    }
    // Adds a note about the current entry.
    void noteEntry(std::string_view why) { contents_.note("the entry ", keys_[0], why, offsets_[0]); }

    void beginEntry() {
        plural_ = {};
        hasFormat_ = false;
        hasMoreVariables_ = false;
        choice_ = {};
    }
    void takeFormat(std::string_view text) {
        if (key() != pluralKeys::format)
            return noteValue(" is a text, not a variable; it is skipped");
        if (hasFormat_)
            noteValue(replaces);
        plural_.format.assign(text);
        hasFormat_ = true;
    }
    void endEntry() {
        if (!hasFormat_ && choice_.isMade()) {
            plural_.format = choice_.text();
            hasFormat_ = true;
            if (const char* const unused = choice_.unusedNote())
                noteEntry(unused);
        } else if (choice_.isMade()) {
            noteEntry(" has a format, too; its texts for widths or devices are skipped");
        }
        if (!hasFormat_) {
            noteEntry(std::string(" has no ").append(pluralKeys::format).append("; it is skipped"));
            return drop();
        }
        if (hasMoreVariables_)
            noteEntry(" has more than " + std::to_string(PluralTable::maxVariables) +
                      " variables; the rest is skipped");
        const auto [known, isNew] = indices_.try_emplace(keys_[0], entries_.size());
        if (isNew) {
            entries_.emplace_back().key = keys_[0];
            keyOffsets_.emplace_back();
        } else if (keyOffsets_[known->second] != dropped) {
            contents_.noteRepeated(keys_[0], "this entry is used", offsets_[0]);
        }
        entries_[known->second].plural = std::move(plural_);
        keyOffsets_[known->second] = offsets_[0];
    }

    void beginVariable() {
        variable_ = {};
        variable_.name = keys_[variableLevel - 1];
        isPlural_ = true;
        isChoice_ = variable_.name == pluralKeys::widthRule || variable_.name == pluralKeys::deviceRule;
        if (isChoice_)
            choice_.begin(variable_.name);
    }
    void takeForm(std::string_view text) {
        if (isChoice_)
            choice_.offer(key(), text);
        else if (key() == pluralKeys::ruleType)
            isPlural_ = text == pluralKeys::pluralRule;
        else if (key() == pluralKeys::valueType)
            variable_.valueType = withoutPercent(text);
        else if (const auto category = Intl::pluralCategoryNamed(key()))
            setForm(variable_.forms[Intl::indexOf(*category)], text);
        else
            noteValue(" is for no plural category; it is skipped");
    }
    void setForm(std::optional<std::string>& form, std::string_view text) {
        if (form)
            noteValue(replaces);
        form.emplace(text);
    }
    void endVariable() {
        if (isChoice_)
            return;
        const auto isSame = [this](const PluralVariable& one) { return one.name == variable_.name; };
        if (!isPlural_)
            return contents_.note("the variable ", variable_.name, " has no plural rule; it is skipped",
                                  offsets_[variableLevel - 1]);
        if (variable_.valueType.empty())
            variable_.valueType = "d";
        if (std::erase_if(plural_.variables, isSame) != 0)
            contents_.note("the variable ", variable_.name, replaces, offsets_[variableLevel - 1]);
        if (plural_.variables.size() < PluralTable::maxVariables)
            plural_.variables.push_back(std::move(variable_));
        else
            hasMoreVariables_ = true;
    }

    Contents& contents_;
    std::size_t depth_ = 0;                // of open dictionaries
    std::array<std::string, levels> keys_; // the current ones, by level
    std::array<std::size_t, levels> offsets_{};
    std::size_t values_ = 0; // of all levels so far
    std::size_t bytes_ = 0;  // of all keys and texts so far

    PluralFormat plural_;
    bool hasFormat_ = false;
    bool hasMoreVariables_ = false; // than maxVariables
    PluralVariable variable_;
    bool isPlural_ = false; // whether its rule type is `pluralRule` or missing
    bool isChoice_ = false; // not a variable, but the texts of `choice_`
    TextChoice choice_;

    std::vector<PluralEntry> entries_;
    std::vector<std::size_t> keyOffsets_; // of the entries; `dropped` if the key's last value is not a plural
    static constexpr std::size_t dropped = ~std::size_t{0};
    Runtime::NameMap<std::size_t> indices_; // the index of each entry, by key
};

Runtime::Result<void> fill(Contents& contents, internal::PropertyListSink& sink) {
    if (auto recognized = internal::recognize(contents); !recognized)
        return recognized;
    switch (contents.form) {
    case Form::binary:
        return readBinary(contents, sink);
    case Form::xml:
        return readXml(contents, sink);
    case Form::text:
        break;
    }
    const std::size_t first = contents.source.find_first_not_of(" \t\r\n", contents.begin);
    if (first == std::string::npos)
        return {};
    return contents.errorAt(first, "expected a property list (XML or binary): plural tables have no text form");
}

// The indices of the entries in the order of their offsets.
std::vector<std::size_t> inOrder(std::span<const std::size_t> keyOffsets) {
    std::vector<std::size_t> order(keyOffsets.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t index) { return keyOffsets[index]; });
    return order;
}

// Sets the locations of the entries, given the offsets of their keys.
void locate(const Contents& contents, std::span<const std::size_t> keyOffsets, std::span<PluralEntry> entries) {
    const std::vector<std::size_t> order = inOrder(keyOffsets);
    internal::Locator locator(contents);
    for (const std::size_t index : order)
        entries[index].location = locator.locate(keyOffsets[index]);
}

void readComments(const Contents& contents, std::span<const std::size_t> keyOffsets, std::span<PluralEntry> entries) {
    const std::vector<std::size_t> order = inOrder(keyOffsets);
    std::vector<std::size_t> offsets;
    for (const std::size_t index : order)
        offsets.push_back(keyOffsets[index]);
    std::vector<std::string> comments = internal::commentsOf(offsets, contents);
    for (std::size_t i = 0; i < order.size(); ++i)
        entries[order[i]].comment = std::move(comments[i]);
}

} // namespace

std::string_view otherForm(const PluralVariable& variable) noexcept {
    // `other` is the last category, so if it has a form, that is the last one.
    const auto last =
        std::find_if(variable.forms.rbegin(), variable.forms.rend(), [](const auto& form) { return form.has_value(); });
    return last == variable.forms.rend() ? std::string_view() : std::string_view(**last);
}

Runtime::Result<PluralTable> PluralTable::read(std::string bytes) {
    return read(std::move(bytes), {}, Comments::areSkipped);
}

Runtime::Result<PluralTable> PluralTable::readFile(const std::string& path, std::string_view bundle,
                                                   Comments comments) {
    auto bytes = Runtime::readFile(path, Table::maxBytes, bundle);
    if (!bytes)
        return std::move(bytes.error());
    return read(*std::move(bytes), path, comments);
}

Runtime::Result<PluralTable> PluralTable::read(std::string bytes, const std::string& file, Comments comments) {
    if (bytes.size() > Table::maxBytes)
        return Runtime::Error{"the table is larger than " + std::to_string(Table::maxBytes) + " bytes", file};
    Contents contents(std::move(bytes));
    PluralSink sink(contents);
    if (auto filled = fill(contents, sink); !filled) {
        filled.error().file = file;
        return std::move(filled.error());
    }
    contents.finish();
    PluralTable table;
    table.entries_ = sink.takeEntries();
    table.notes_ = std::move(contents.notes);
    for (Runtime::Error& note : table.notes_)
        note.file = file;
    locate(contents, sink.keyOffsets(), table.entries_);
    if (comments == Comments::areRead)
        readComments(contents, sink.keyOffsets(), table.entries_);
    table.byKey_.resize(table.entries_.size());
    std::iota(table.byKey_.begin(), table.byKey_.end(), std::size_t{0});
    std::ranges::sort(table.byKey_, {},
                      [&](std::size_t number) { return std::string_view(table.entries_[number].key); });
    return table;
}

const PluralEntry* PluralTable::find(std::string_view key) const noexcept {
    const auto keyOf = [this](std::size_t number) { return std::string_view(entries_[number].key); };
    const auto found = std::ranges::lower_bound(byKey_, key, {}, keyOf);
    return found != byKey_.end() && keyOf(*found) == key ? &entries_[*found] : nullptr;
}

} // namespace StringTables
