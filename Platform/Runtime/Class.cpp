#include "Runtime/Class.h"

#include "Runtime/Fatal.h"
#include "Runtime/internal/PublishedClasses.h"
#include <algorithm>

namespace Runtime {

namespace {

std::vector<std::string> namesOf(std::span<const Method> methods) {
    std::vector<std::string> names;
    names.reserve(methods.size());
    for (const Method& method : methods)
        names.emplace_back(method.selector);
    return names;
}

const Method* findIn(std::span<const Method> methods, std::string_view selector) noexcept {
    const auto found =
        std::ranges::find(methods, selector, [](const Method& method) { return std::string_view(method.selector); });
    return found == methods.end() ? nullptr : &*found;
}

[[noreturn]] void reject(std::string_view subject, std::string_view complaint, std::string_view selector) {
    fatalError({subject, " ", complaint, " \"", selector, "\""}, "Runtime/Class", 0); // the sender's line is unknown
}

} // namespace

std::vector<std::string> Class::classProperties() const {
    return namesOf(properties_);
}

std::vector<std::string> Class::classMethods() const {
    return namesOf(methods_);
}

const Method* Class::find(std::string_view selector) const noexcept {
    const Method* method = findIn(methods_, selector);
    return method != nullptr ? method : findIn(properties_, selector);
}

const Class* classNamed(std::string_view name) noexcept {
    return findPublished([name](const Class& published) { return published.name() == name; });
}

namespace detail {

const Method& resolve(const Class* cls, std::string_view selector, std::span<const Argument> arguments,
                      TypeTag result) noexcept {
    if (cls == nullptr)
        reject("An unknown class", "was sent", selector);
    const Method* method = cls->find(selector);
    if (method == nullptr)
        reject(cls->name(), "does not respond to", selector);
    if (!std::ranges::equal(method->arguments, arguments,
                            [](TypeTag published, const Argument& given) { return *published == *given.type; }))
        reject(cls->name(), "was sent arguments of the wrong types or number with", selector);
    if (*method->result != *result)
        reject(cls->name(), "does not return the expected type for", selector);
    return *method;
}

} // namespace detail

} // namespace Runtime
