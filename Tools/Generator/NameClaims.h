// Generator/NameClaims.h
// Tracks the names of a tree to detect clashes: each name belongs to one member (an accessor or a constant) or is a
// group of names.
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
        std::size_t member; // the one that claimed the name first
        bool isGroup;       // the name is a group on that member's path
    };
    struct Conflict {
        std::string name; // "Settings::title"
        Owner owner;
    };

    // Claims `path`, the names of the groups and then that of the member, for `member`, a number that the caller chose.
    // Claims nothing and returns the conflict if the last name exists or a group has the name of a member.
    std::optional<Conflict> claim(const std::vector<std::string>& path, std::size_t member);

private:
    // A name within its group. Looking up one part at a time avoids hashing a long path once per part.
    struct Name {
        std::size_t group; // its node's id; 0 for the root
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
        std::size_t id;
        Owner owner;
    };

    std::unordered_map<Name, Node, Hash> nodes_;
};

// "Settings::Profile::title".
[[nodiscard]] std::string qualified(const std::vector<std::string>& path);

} // namespace Generator
