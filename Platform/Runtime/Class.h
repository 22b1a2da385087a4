// Runtime/Class.h
// Calls of static functions by name, for callers that know class and function only as strings: a caller sends a class a
// message, which is a selector, such as "legacyTrAge:", and arguments. The method that the class has published under
// that selector is called. Classes are constant data; a lookup finds them in the program and the loaded libraries.
// Threads: any. Ownership: classes and what they refer to live as long as their library; results belong to the caller.
#pragma once

#include "Runtime/Export.h"

#ifndef __cpp_rtti
#error "message dispatch compares types at run time: compile with -frtti, or do without Runtime/Class.h"
#else

#include <concepts>
#include <cstddef> // std::byte
#include <cstdint>
#include <memory> // std::destroy_at
#include <new>    // placement, std::launder
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Runtime {

// The type of an argument or result. Compare the type_infos, not the pointers: each library may have its own copy.
using TypeTag = const std::type_info*;

// The type in which an argument or a result is passed: bool as bool, every other integer as std::int64_t, every
// floating-point number as double, every string as std::string (a null C string as an empty one), any other type as a
// copy.
template <class T>
using Carried = std::conditional_t<
    std::same_as<std::remove_cvref_t<T>, bool>, bool,
    std::conditional_t<std::integral<std::remove_cvref_t<T>>, std::int64_t,
                       std::conditional_t<std::floating_point<std::remove_cvref_t<T>>, double,
                                          std::conditional_t<std::convertible_to<T, std::string_view>, std::string,
                                                             std::remove_cvref_t<T>>>>>;

// An argument of a message: a value in its Carried type.
struct Argument {
    TypeTag type;
    const void* value;
};

// A function that a class publishes. `invoke` calls it with arguments of exactly these types and constructs its result
// at `place`, raw memory of the right size and alignment.
struct Method {
    const char* selector;
    TypeTag result;
    std::span<const TypeTag> arguments;
    void (*invoke)(const Argument* arguments, void* place);
};

// What is published under a class's name: "Lumora.Localization", or just "UIImage" for what a module adds to that class
// of the platform. Properties are methods without arguments, listed separately.
class LUMORA_EXPORT Class {
public:
    constexpr Class(const char* name, std::span<const Method> properties, std::span<const Method> methods) noexcept
        : name_(name), properties_(properties), methods_(methods) {}

    std::string_view name() const noexcept { return name_; }
    // The selectors, in published order.
    std::vector<std::string> classProperties() const;
    std::vector<std::string> classMethods() const;

    // The method or property with that selector, or null.
    const Method* find(std::string_view selector) const noexcept;

private:
    const char* name_;
    std::span<const Method> properties_;
    std::span<const Method> methods_;
};

// The first class of that name in the program and the loaded libraries, or null. Each call searches all of them under
// the dynamic linker's lock, so callers should keep the result.
[[nodiscard]] LUMORA_EXPORT const Class* classNamed(std::string_view name) noexcept;

namespace detail {

// The method of `cls` for `selector`. Stops the process if `cls` is null, has no such method, or one with other types
// than `arguments` and `result`.
LUMORA_EXPORT const Method& resolve(const Class* cls, std::string_view selector, std::span<const Argument> arguments,
                                    TypeTag result) noexcept;

template <class T> Carried<T> carried(const T& value) {
    if constexpr (std::is_pointer_v<T> || std::is_null_pointer_v<T>)
        if (value == nullptr)
            return {};
    return static_cast<Carried<T>>(value);
}

template <class Parameter>
inline constexpr bool isPassedUnchanged = !std::is_arithmetic_v<std::remove_cvref_t<Parameter>> ||
                                          std::same_as<std::remove_cvref_t<Parameter>, Carried<Parameter>>;

// Calls `function` with arguments in their Carried types.
template <auto* function, class Result, class... Arguments> struct Bridge {
    static_assert((isPassedUnchanged<Arguments> && ...),
                  "a published function must take numbers as bool, std::int64_t or double");

    // One more than the arguments, because an array cannot be empty.
    static constexpr TypeTag arguments[sizeof...(Arguments) + 1] = {&typeid(Carried<Arguments>)..., nullptr};

    static void invoke(const Argument* given, void* place) {
        call(given, place, std::index_sequence_for<Arguments...>());
    }
    template <std::size_t... I>
    static void call([[maybe_unused]] const Argument* given, void* place, std::index_sequence<I...>) {
        ::new (place) Carried<Result>(carried(function(*static_cast<const Carried<Arguments>*>(given[I].value)...)));
    }
};

} // namespace detail

// The static function `function` as the method for `selector`. The function must not return void; it must take numbers
// as bool, std::int64_t or double, strings as std::string or std::string_view, and any other type as it is, each as a
// value or a constant reference.
template <auto* function> constexpr Method method(const char* selector) noexcept {
    return []<class Result, class... Arguments>(const char* name, Result (*)(Arguments...)) {
        using Bridge = detail::Bridge<function, Result, Arguments...>;
        return Method{name, &typeid(Carried<Result>), std::span(Bridge::arguments, sizeof...(Arguments)),
                      &Bridge::invoke};
    }(selector, function);
}

// Publishes `cls`, the unqualified name of a Class object with static storage duration, so that classNamed() finds it
// while its library or program is loaded. An ELF note points to the class, so no code runs at start-up and no symbol is
// exported. Use it at namespace scope.
#define LUMORA_PUBLISH_CLASS(cls) LUMORA_PUBLISH_CLASS_AS(cls, LUMORA_PUBLISHED_SYMBOL(__COUNTER__))
#define LUMORA_PUBLISHED_SYMBOL(number) LUMORA_PUBLISHED_SYMBOL_TEXT(number)
#define LUMORA_PUBLISHED_SYMBOL_TEXT(number) "lumora_published_class_" #number
// The note: sizes of the owner's name and of the content, the type (1), the name, and the content, which is the
// relative address of a pointer to the class. The pointer has a symbol for the assembler; the class may have none.
#define LUMORA_PUBLISH_CLASS_AS(cls, symbol)                                                                           \
    [[gnu::used]] static const ::Runtime::Class* const cls##Published __asm__(symbol) = &(cls);                        \
    __asm__(".pushsection .note.lumora.class,\"a\",%note\n.balign 4\n.long 7, 4, 1\n.asciz \"Lumora\"\n.balign "       \
            "4\n.long " symbol " - .\n.popsection")

// Sends a message and returns its result. A null class, an unknown selector, and arguments or a result type that do not
// match the method stop the process with a report that names class and selector.
template <class Result, class... Arguments>
Carried<Result> send(const Class* cls, std::string_view selector, const Arguments&... arguments) {
    return [&](const Carried<Arguments>&... carried) {
        const Argument given[] = {{&typeid(Carried<Arguments>), &carried}..., {nullptr, nullptr}}; // as in Bridge
        const Method& found =
            detail::resolve(cls, selector, std::span(given, sizeof...(Arguments)), &typeid(Carried<Result>));
        alignas(Carried<Result>) std::byte place[sizeof(Carried<Result>)];
        found.invoke(given, place);
        auto* const made = std::launder(reinterpret_cast<Carried<Result>*>(place));
        Carried<Result> moved = std::move(*made);
        std::destroy_at(made);
        return moved;
    }(detail::carried(arguments)...);
}

} // namespace Runtime

#endif // __cpp_rtti
