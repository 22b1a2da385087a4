#include "Generator/NameClaims.h"

namespace Generator {

std::optional<NameClaims::Conflict> NameClaims::claim(const std::vector<std::string>& path, std::size_t member) {
    std::size_t group = 0; // the id of the group that contains the next part
    std::size_t known = 0; // the number of leading parts that already exist
    for (; known < path.size(); ++known) {
        const bool isGroup = known + 1 < path.size();
        const auto found = nodes_.find({group, path[known]});
        if (found == nodes_.end())
            break;
        if (!isGroup || !found->second.owner.isGroup)
            return Conflict{qualified({path.begin(), path.begin() + static_cast<std::ptrdiff_t>(known) + 1}),
                            found->second.owner};
        group = found->second.id;
    }
    for (; known < path.size(); ++known) {
        const Node node{nodes_.size() + 1, {member, known + 1 < path.size()}};
        nodes_.try_emplace({group, path[known]}, node);
        group = node.id;
    }
    return std::nullopt;
}

std::string qualified(const std::vector<std::string>& path) {
    std::string name;
    for (const std::string& part : path)
        name.append(name.empty() ? "" : "::").append(part);
    return name;
}

} // namespace Generator
