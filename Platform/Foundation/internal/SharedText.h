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
#include <string>
#include <string_view>

namespace Foundation::detail {

// One of the two buffers; SharedText writes the one that is not being read.
template <std::size_t longest> class TextBuffer {
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

// A string of at most `longest` bytes, with a version number.
template <std::size_t longest> class SharedText {
public:
    struct Read {
        std::uint64_t version;
        std::string text;
    };

    // 0 before the first write.
    std::uint64_t version() const noexcept { return version_.load(std::memory_order_acquire); }

    Read read() const {
        for (;;) {
            Read now{version(), {}};
            now.text = buffers_[bufferOf(now.version)].read();
            std::atomic_thread_fence(std::memory_order_acquire);
            // The buffer is reused only after the next version was published.
            if (version_.load(std::memory_order_relaxed) == now.version)
                return now;
        }
    }

    // One thread at a time. Requires text.size() <= longest. In a child that was forked during a write, the previous
    // text stays valid.
    void write(std::string_view text) noexcept {
        const std::uint64_t next = version_.load(std::memory_order_relaxed) + 1;
        std::atomic_thread_fence(std::memory_order_release);
        buffers_[bufferOf(next)].write(text);
        version_.store(next, std::memory_order_release);
    }

private:
    // The first text is in the buffer next to the version; most processes use no other.
    static constexpr std::size_t bufferOf(std::uint64_t version) noexcept { return (version - 1) % 2; }

    std::atomic<std::uint64_t> version_{0};
    std::array<TextBuffer<longest>, 2> buffers_{};
};

} // namespace Foundation::detail
