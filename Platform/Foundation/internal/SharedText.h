// Foundation/internal/SharedText.h
// A short string that one thread replaces while others read it (a seqlock with two buffers); internal.
// Threads: any number of readers, one writer at a time. Readers take no lock: they copy the text and retry if it was
// replaced meanwhile. Memory: fixed.
#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <tuple> // std::tuple_size_v

namespace Foundation::detail {

// One of the two buffers; SharedText writes the one that does not have the current text. A reader that gets a part of a
// later text also sees a later version, because each part is stored and loaded with release and acquire order.
template <std::size_t longest> class TextBuffer {
public:
    using Word = std::uint64_t;
    using Words = std::array<Word, (longest + sizeof(Word) - 1) / sizeof(Word)>;

    void write(std::string_view text) noexcept {
        size_.store(text.size(), std::memory_order_release);
        for (std::size_t i = 0; i * sizeof(Word) < text.size(); ++i) {
            Word word = 0;
            const std::string_view part = text.substr(i * sizeof word, sizeof word);
            std::memcpy(&word, part.data(), part.size());
            words_[i].store(word, std::memory_order_release);
        }
    }
    // Copies the text in whole words and returns its size.
    std::size_t read(Words& out) const noexcept {
        // The size is never larger than `longest`; a loop with a known bound is compiled to faster code.
        const std::size_t size = std::min(size_.load(std::memory_order_acquire), longest);
        for (std::size_t i = 0; i * sizeof(Word) < size; ++i)
            out[i] = words_[i].load(std::memory_order_acquire);
        return size;
    }

private:
    std::atomic<std::size_t> size_{0};
    std::array<std::atomic<Word>, std::tuple_size_v<Words>> words_{};
};

// A string of at most `longest` bytes, with a version number.
template <std::size_t longest> class SharedText {
public:
    // 0 before the first write.
    std::uint64_t version() const noexcept { return version_.load(std::memory_order_acquire); }

    // Returns `make(version, text)`, where `text` is a view of a consistent copy. Making the result in place saves
    // moving a string.
    template <class Make> auto read(Make make) const {
        typename TextBuffer<longest>::Words words; // not initialized: only the words of the text are used
        for (;;) {
            const std::uint64_t before = version();
            const std::size_t size = buffers_[bufferOf(before)].read(words);
            // A buffer is written again only after the next version was published.
            if (version_.load(std::memory_order_relaxed) == before)
                return make(before, std::string_view(reinterpret_cast<const char*>(words.data()), size));
        }
    }

    // One thread at a time. Requires text.size() <= longest. In a child that was forked during a write, the previous
    // text stays valid.
    void write(std::string_view text) noexcept {
        const std::uint64_t next = version_.load(std::memory_order_relaxed) + 1;
        buffers_[bufferOf(next)].write(text);
        version_.store(next, std::memory_order_release);
    }

private:
    // The first text, the only one in most processes, is in the buffer next to the version.
    static constexpr std::size_t bufferOf(std::uint64_t version) noexcept { return (version - 1) % 2; }

    std::atomic<std::uint64_t> version_{0};
    std::array<TextBuffer<longest>, 2> buffers_{};
};

} // namespace Foundation::detail
