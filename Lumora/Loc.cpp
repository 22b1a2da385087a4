#include "Lumora/Loc.h"

#include "Foundation/NSNumber.h"
#include "Runtime/Class.h"
#include "Runtime/OnceSlot.h"
#include <cstddef>
#include <new>

struct NSString {
    std::string text;
};

namespace {

// C callers release strings and numbers with the same function, so each object is preceded by a header with its
// deleter.
struct Header {
    void (*destroy)(Header* header);
};
constexpr std::size_t headerSize = alignof(std::max_align_t);
static_assert(sizeof(Header) <= headerSize);

template <class T> struct Object : Header {
    alignas(headerSize) T value; // at the offset headerSize
};

template <class T, class... Parts> T* create(Parts&&... parts) {
    constexpr auto destroy = [](Header* header) { delete static_cast<Object<T>*>(header); };
    return &(new Object<T>{{destroy}, T{std::forward<Parts>(parts)...}})->value;
}

// Returns the object that `make` creates, or null when it throws: exceptions must not reach C callers.
template <class Make> auto createForC(Make make) noexcept -> decltype(make()) {
    try {
        return make();
    } catch (...) {
        return nullptr;
    }
}

// Calls a function of Localization by its selector, as callers in other languages do, so that all get the same texts.
// Null when memory runs out.
template <class... Arguments>
NSString* sendToLocalization(std::string_view selector, const Arguments&... arguments) noexcept {
    return createForC([&] {
        static constinit Runtime::OnceSlot<const Runtime::Class*> localization;
        const Runtime::Class* cls = localization.get([] { return Runtime::classNamed("Lumora.Localization"); });
        return create<NSString>(Runtime::send<std::string>(cls, selector, arguments...));
    });
}

} // namespace

NSString* NSStringCreate(const char* utf8) {
    return createForC([&] { return create<NSString>(utf8 == nullptr ? "" : utf8); });
}

const char* NSStringUTF8(const NSString* string) {
    return string == nullptr ? "" : string->text.c_str();
}

NSNumber* NSNumberCreateInteger(int64_t value) {
    return createForC([&] { return create<NSNumber>(value); });
}

NSNumber* NSNumberCreateDouble(double value) {
    return createForC([&] { return create<NSNumber>(value); });
}

void NSRelease(const void* object) {
    if (object == nullptr)
        return;
    std::byte* bytes = static_cast<std::byte*>(const_cast<void*>(object)) - headerSize;
    Header* header = std::launder(reinterpret_cast<Header*>(bytes));
    header->destroy(header);
}

NSString* Loc(const NSString* key) {
    return key == nullptr ? NSStringCreate("") : sendToLocalization("legacyTr:", key->text);
}

NSString* LocNumber(const NSNumber* number) {
    return LocNumberWithPositivePrefix(number, false);
}

NSString* LocNumberWithPositivePrefix(const NSNumber* number, bool needSign) {
    return number == nullptr ? NSStringCreate("") : sendToLocalization("legacyTrNumber:needSign:", *number, needSign);
}

NSString* LocAge(NSInteger age) {
    return sendToLocalization("legacyTrAge:", age);
}

NSString* LocPercent(CGFloat value) {
    return LocPercentSigned(value, false);
}

NSString* LocPercentSigned(CGFloat value, bool showPlus) {
    return sendToLocalization("legacyTrPercent:showPlus:", value, showPlus);
}
