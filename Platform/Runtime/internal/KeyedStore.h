// Runtime/internal/KeyedStore.h
// An append-only hash map from names to values that are kept until the process ends.
// Threads: any; lock-free. Ownership: values never move and are never destroyed.
#pragma once

#include "Runtime/internal/NameMap.h"
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

// A fixed number of buckets, each a tree: the next bits of a key's hash select the child of a node.
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
        Node* const root = bucket(hash).load(std::memory_order_acquire);
        if (root != nullptr && root->isOf(hash, key)) [[likely]]
            return &root->value;
        return root == nullptr ? nullptr : findBelow(*root, key, hash);
    }

    std::size_t size() const noexcept { return size_.load(std::memory_order_relaxed); }

    // Constructs the value of `key` from `parts`, or returns the one that the store has by then. Returns null and
    // leaves `parts` unchanged when the store has `limit` values, which threads that add at the same time may exceed.
    template <class... Parts> T* add(std::size_t limit, std::string_view key, Parts&&... parts) {
        if (size() >= limit)
            return nullptr;
        const std::uint64_t hash = keyHash(key);
        std::unique_ptr<Node> made(new Node{hash, std::string(key), T(std::forward<Parts>(parts)...), {}});
        Descent descent(hash, key);
        Node* other = nullptr;
        for (Link* link = &bucket(hash); !link->compare_exchange_strong(other, made.get(), std::memory_order_acq_rel);
             other = nullptr) {
            if (other->isOf(hash, key))
                return &other->value;
            link = &other->children[descent.next()];
        }
        size_.fetch_add(1, std::memory_order_relaxed);
        return &made.release()->value;
    }

private:
    static constexpr std::size_t branches = 4;
    struct Node;
    using Link = std::atomic<Node*>;
    struct Node {
        bool isOf(std::uint64_t otherHash, std::string_view otherKey) const noexcept {
            return hash == otherHash && key == otherKey;
        }
        std::uint64_t hash;
        std::string key;
        T value;
        std::array<Link, branches> children{};
    };

    // A separate function, so that a lookup that ends at the root needs few registers.
    [[gnu::noinline]] T* findBelow(Node& root, std::string_view key, std::uint64_t hash) const noexcept {
        Descent descent(hash, key);
        for (Node* node = &root;;) {
            node = node->children[descent.next()].load(std::memory_order_acquire);
            if (node == nullptr || node->isOf(hash, key))
                return node == nullptr ? nullptr : &node->value;
        }
    }

    // The children on the way to a key. Only keys that were made to have the same hash need more levels than its bits
    // select; for those levels the key is hashed again, with a seed that nobody outside the process knows.
    class Descent {
    public:
        Descent(std::uint64_t hash, std::string_view key) noexcept : bits_(hash / buckets), key_(key) {}
        std::size_t next() noexcept {
            if (level_ == levels) {
                level_ = 0;
                bits_ = hashBytes(key_, processSeed() + ++rounds_);
            }
            ++level_;
            return std::exchange(bits_, bits_ / branches) % branches;
        }

    private:
        static constexpr unsigned levels = 24; // of two bits each, which leaves 16 bits of a hash for the bucket
        std::uint64_t bits_;
        std::string_view key_;
        unsigned level_ = 0;
        std::uint64_t rounds_ = 0;
    };

    Link& bucket(std::uint64_t hash) noexcept { return buckets_[hash % buckets]; }
    const Link& bucket(std::uint64_t hash) const noexcept { return buckets_[hash % buckets]; }

    std::array<Link, buckets> buckets_{};
    std::atomic<std::size_t> size_{0};
};

} // namespace Runtime
