// Generator/NameClaims.h
// The names of a tree and what they name: each belongs to one member, or to the groups of that name.
// Threads: values.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Generator {

class NameClaims {
public:
    struct Owner {
        std::size_t number; // as it was given to claim()
        bool isGroup;
    };
    struct Conflict {
        std::string name; // "Settings::title"
        Owner owner;      // to whom it belongs
    };

    // Takes the names of `path`, groups first, for the member `number`. If one of them belongs to another, takes none.
    std::optional<Conflict> claim(const std::vector<std::string>& path, std::size_t number);

private:
    // A name in its group, by which alone it is looked up: a long path is not hashed again for each of its parts.
    struct Name {
        std::size_t group; // the number of its node; 0 for the root
        std::string name;

        bool operator==(const Name&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Name& name) const noexcept {
            return std::hash<std::string>()(name.name) * 31 + name.group;
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
