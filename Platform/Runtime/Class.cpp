#include "Runtime/Class.h"

#include "Runtime/Fatal.h"
#include "Runtime/internal/PublishedClasses.h"
#include <algorithm>

namespace Runtime {

namespace {

std::vector<std::string> namesOf(std::span<const Message> messages) {
    std::vector<std::string> names;
    names.reserve(messages.size());
    for (const Message& message : messages)
        names.emplace_back(message.selector);
    return names;
}

const Message* findIn(std::span<const Message> messages, std::string_view selector) noexcept {
    const auto found =
        std::ranges::find(messages, selector, [](const Message& m) { return std::string_view(m.selector); });
    return found == messages.end() ? nullptr : &*found;
}

[[noreturn]] void reject(std::string_view subject, std::string_view selector, std::string_view complaint) {
    fatalError({subject, " ", complaint, " \"", selector, "\""}, "Runtime/Class", 0);
}

} // namespace

std::vector<std::string> Class::classProperties() const {
    return namesOf(properties_);
}

std::vector<std::string> Class::classMethods() const {
    return namesOf(methods_);
}

const Message* Class::find(std::string_view selector) const noexcept {
    const Message* method = findIn(methods_, selector);
    return method != nullptr ? method : findIn(properties_, selector);
}

const Class* classNamed(std::string_view name) noexcept {
    return findPublished([name](const Class& published) { return published.name() == name; });
}

namespace detail {

const Message& resolve(const Class* cls, std::string_view selector, std::span<const Argument> arguments,
                       TypeTag result) noexcept {
    if (cls == nullptr)
        reject("An unknown class", selector, "was sent");
    const Message* message = cls->find(selector);
    if (message == nullptr)
        reject(cls->name(), selector, "does not respond to");
    if (!std::ranges::equal(message->arguments, arguments,
                            [](TypeTag published, const Argument& given) { return *published == *given.type; }))
        reject(cls->name(), selector, "was sent arguments of other types with");
    if (*message->result != *result)
        reject(cls->name(), selector, "returns a result of another type for");
    return *message;
}

} // namespace detail

} // namespace Runtime
