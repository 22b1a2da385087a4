// Runtime/internal/AppendOnlyList.h
// Few things, kept until the process ends.
// Threads: any; looking takes no lock. Ownership: what is in the list stays there, at its address.
#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace Runtime {

template <class T> class AppendOnlyList {
public:
    // Constant: a static list is zeroed memory.
    constexpr AppendOnlyList() noexcept = default;
    AppendOnlyList(const AppendOnlyList&) = delete;
    AppendOnlyList& operator=(const AppendOnlyList&) = delete;

    // The one for which `is(value)` holds, or null.
    template <class Is> const T* find(Is is) const noexcept {
        return search(first_.load(std::memory_order_acquire), is);
    }

    // Adds `value`. Where another thread has added one of its kind meanwhile, that one is everybody's.
    template <class Is> const T& add(T value, Is is) {
        auto made = std::make_unique<Node>(Node{std::move(value), first_.load(std::memory_order_acquire)});
        do {
            if (const T* others = search(made->next, is))
                return *others;
        } while (!first_.compare_exchange_weak(made->next, made.get(), std::memory_order_acq_rel));
        return made.release()->value;
    }

private:
    struct Node {
        T value;
        const Node* next;
    };

    template <class Is> static const T* search(const Node* node, Is& is) noexcept {
        while (node != nullptr && !is(node->value))
            node = node->next;
        return node == nullptr ? nullptr : &node->value;
    }

    std::atomic<const Node*> first_{nullptr};
};

} // namespace Runtime
