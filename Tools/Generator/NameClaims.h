// Generator/NameClaims.h
// The names of a tree and what they name: each belongs to one member, or to the groups of that name.
// Threads: values.
#pragma once

#include <cstddef>
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
    std::unordered_map<std::string, Owner> owners_; // by qualified name
};

// "Settings::Profile::title".
[[nodiscard]] std::string qualified(const std::vector<std::string>& path);

} // namespace Generator
