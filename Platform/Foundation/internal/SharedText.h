// Foundation/internal/SharedText.h
// A short text that one thread replaces while others read it; internal.
// Threads: any number of readers, one writer at a time. Readers take no lock: they copy, and look whether the text was
// replaced meanwhile. Memory: fixed.
#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace Foundation::detail {

// One of two places for a text; SharedText writes the one that is not read.
template <std::size_t longest> class TextPlace {
public:
    void write(std::string_view text) noexcept {
        size_.store(text.size(), std::memory_order_relaxed);
        for (std::size_t i = 0; i * sizeof(Word) < text.size(); ++i) {
            Word word = 0;
            const std::string_view part = text.substr(i * sizeof word, sizeof word);
            std::memcpy(&word, part.data(), part.size());
            words_[i].store(word, std::memory_order_relaxed);
        }
    }
    std::string read() const {
        std::string text(std::min(size_.load(std::memory_order_relaxed), longest), '\0');
        for (std::size_t i = 0; i * sizeof(Word) < text.size(); ++i) {
            const Word word = words_[i].load(std::memory_order_relaxed);
            std::memcpy(text.data() + i * sizeof word, &word, std::min(text.size() - i * sizeof word, sizeof word));
        }
        return text;
    }

private:
    using Word = std::uint64_t;
    std::atomic<std::size_t> size_{0};
    std::array<std::atomic<Word>, (longest + sizeof(Word) - 1) / sizeof(Word)> words_{};
};

// Texts of at most `longest` bytes, with the number of each.
template <std::size_t longest> class SharedText {
public:
    struct Read {
        std::uint64_t version;
        std::string text;
    };

    // 0 before the first text.
    std::uint64_t version() const noexcept { return version_.load(std::memory_order_acquire); }

    Read read() const {
        for (;;) {
            Read now{version(), {}};
            now.text = places_[now.version % 2].read();
            std::atomic_thread_fence(std::memory_order_acquire);
            // The place is written again only after the next version is in force.
            if (version_.load(std::memory_order_relaxed) == now.version)
                return now;
        }
    }

    // One thread at a time. `text` is not longer than it may be. In a child that was forked during a write the text
    // before it holds.
    void write(std::string_view text) noexcept {
        const std::uint64_t next = version_.load(std::memory_order_relaxed) + 1;
        std::atomic_thread_fence(std::memory_order_release);
        places_[next % 2].write(text);
        version_.store(next, std::memory_order_release);
    }

private:
    std::atomic<std::uint64_t> version_{0};
    std::array<TextPlace<longest>, 2> places_{};
};

} // namespace Foundation::detail
