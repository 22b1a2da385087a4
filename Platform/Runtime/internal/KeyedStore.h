// Runtime/internal/KeyedStore.h
// An append-only hash map from names to values that are kept until the process ends.
// Threads: any; lock-free. Ownership: values never move and are never destroyed.
#pragma once

#include "Runtime/internal/Hash.h"
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Runtime {

// Separate chaining with a fixed number of buckets.
template <class T, std::size_t buckets = 64> class KeyedStore {
public:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    // Constant-initialized: a static store costs zeroed memory and no start-up code.
    constexpr KeyedStore() noexcept = default;
    KeyedStore(const KeyedStore&) = delete;
    KeyedStore& operator=(const KeyedStore&) = delete;

    // The value of `key` (exact), or null.
    T* find(std::string_view key) const noexcept { return find(key, keyHash(key)); }
    // The same with `hash`, which is keyHash(key). With a wrong hash nothing is found.
    T* find(std::string_view key, std::uint64_t hash) const noexcept {
        return search(bucket(hash).load(std::memory_order_acquire), hash, key);
    }

    // Constructs the value of `key` from `parts`, or returns the value that another thread added meanwhile. Returns
    // null and keeps nothing when the store already holds `limit` values.
    template <class... Parts> T* add(std::size_t limit, std::string_view key, Parts&&... parts) {
        if (size_.load(std::memory_order_relaxed) >= limit)
            return nullptr;
        const std::uint64_t hash = keyHash(key);
        std::atomic<Node*>& first = bucket(hash);
        std::unique_ptr<Node> made(new Node{hash, std::string(key), T(std::forward<Parts>(parts)...), nullptr});
        made->next = first.load(std::memory_order_acquire);
        do {
            if (T* const others = search(made->next, hash, key))
                return others;
        } while (!first.compare_exchange_weak(made->next, made.get(), std::memory_order_acq_rel));
        size_.fetch_add(1, std::memory_order_relaxed);
        return &made.release()->value;
    }

private:
    struct Node {
        std::uint64_t hash;
        std::string key;
        T value;
        Node* next;
    };

    static T* search(Node* node, std::uint64_t hash, std::string_view key) noexcept {
        while (node != nullptr && (node->hash != hash || !isSameName(node->key, key)))
            node = node->next;
        return node == nullptr ? nullptr : &node->value;
    }

    std::atomic<Node*>& bucket(std::uint64_t hash) noexcept { return buckets_[hash % buckets]; }
    const std::atomic<Node*>& bucket(std::uint64_t hash) const noexcept { return buckets_[hash % buckets]; }

    std::array<std::atomic<Node*>, buckets> buckets_{};
    std::atomic<std::size_t> size_{0};
};

} // namespace Runtime
