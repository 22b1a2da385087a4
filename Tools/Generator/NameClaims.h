// Generator/NameClaims.h
// Tracks the names of a tree to detect clashes: each name belongs to one member or is a group.
// Threads: one at a time.
#pragma once

#include "Runtime/internal/NameMap.h"
#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Generator {

class NameClaims {
public:
    // Makes room for `count` members.
    void reserve(std::size_t count) { nodes_.reserve(count); }

    struct Owner {
        std::size_t number; // as it was given to claim()
        bool isGroup;
    };
    struct Conflict {
        std::string name; // "Settings::title"
        Owner owner;      // the member or group that has the name
    };

    // Claims the names of `path`, groups first, for the member `number`. Claims nothing if one of them is taken.
    std::optional<Conflict> claim(const std::vector<std::string>& path, std::size_t number);

private:
    // A name within its group. Looking up one part at a time avoids hashing a long path once per part.
    struct Name {
        std::size_t group; // the number of its node; 0 for the root
        std::string name;

        bool operator==(const Name&) const = default;
    };
    // Not noexcept: libstdc++ then keeps each hash instead of computing it again while it searches.
    struct Hash {
        std::size_t operator()(const Name& name) const {
            return Runtime::hashBytes(name.name, Runtime::processSeed() + name.group);
        }
    };
    struct Node {
        std::size_t number;
        Owner owner;
    };

    std::unordered_map<Name, Node, Hash> nodes_;
};

// "Settings::Profile::title".
[[nodiscard]] std::string qualified(const std::vector<std::string>& path);

} // namespace Generator
