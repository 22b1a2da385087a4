#include "Generator/NameClaims.h"

namespace Generator {

namespace {

// Calls `visit` with each group's qualified name and then the member's, until it returns false.
template <class Visit> void visitNames(const std::vector<std::string>& path, Visit&& visit) {
    std::string name;
    for (const std::string& part : path) {
        name.append(name.empty() ? "" : "::").append(part);
        if (!visit(name, &part != &path.back()))
            return;
    }
}

} // namespace

std::optional<NameClaims::Conflict> NameClaims::claim(const std::vector<std::string>& path, std::size_t number) {
    std::optional<Conflict> conflict;
    visitNames(path, [&](const std::string& name, bool isGroup) {
        const auto found = owners_.find(name);
        if (found != owners_.end() && !(isGroup && found->second.isGroup))
            conflict = {name, found->second};
        return !conflict;
    });
    if (!conflict)
        visitNames(path, [&](const std::string& name, bool isGroup) {
            owners_.try_emplace(name, Owner{number, isGroup});
            return true;
        });
    return conflict;
}

std::string qualified(const std::vector<std::string>& path) {
    std::string name;
    for (const std::string& part : path)
        name.append(name.empty() ? "" : "::").append(part);
    return name;
}

} // namespace Generator
