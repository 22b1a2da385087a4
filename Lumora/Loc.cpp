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

// C callers hold texts and numbers by bare pointers and release both by one function, so each lies behind a note of how
// it is deleted.
struct Header {
    void (*release)(Header* dying);
};
constexpr std::size_t headerSize = alignof(std::max_align_t);
static_assert(sizeof(Header) <= headerSize);

template <class T> struct Object : Header {
    alignas(headerSize) T value; // at headerSize
};

template <class T, class... Parts> T* create(Parts&&... parts) {
    constexpr auto release = [](Header* dying) { delete static_cast<Object<T>*>(dying); };
    return &(new Object<T>{{release}, T{std::forward<Parts>(parts)...}})->value;
}

// Runs `make` and hands its object to a C caller, through whom nothing may be thrown.
template <class Make> auto handOver(Make make) noexcept -> decltype(make()) {
    try {
        return make();
    } catch (...) {
        return nullptr;
    }
}

template <class... Arguments> NSString* answer(std::string_view selector, const Arguments&... arguments) noexcept {
    return handOver([&] {
        static constinit Runtime::OnceSlot<const Runtime::Class*> localization;
        const Runtime::Class* cls = localization.get([] { return Runtime::classNamed("Lumora.Localization"); });
        return create<NSString>(Runtime::send<std::string>(cls, selector, arguments...));
    });
}

} // namespace

NSString* NSStringCreate(const char* utf8) {
    return handOver([&] { return create<NSString>(utf8 == nullptr ? "" : utf8); });
}

const char* NSStringUTF8(const NSString* string) {
    return string == nullptr ? "" : string->text.c_str();
}

NSNumber* NSNumberCreateInteger(int64_t value) {
    return handOver([&] { return create<NSNumber>(value); });
}

NSNumber* NSNumberCreateDouble(double value) {
    return handOver([&] { return create<NSNumber>(value); });
}

void NSRelease(const void* object) {
    if (object == nullptr)
        return;
    std::byte* header = static_cast<std::byte*>(const_cast<void*>(object)) - headerSize;
    Header* dying = std::launder(reinterpret_cast<Header*>(header));
    dying->release(dying);
}

NSString* Loc(const NSString* key) {
    return key == nullptr ? NSStringCreate("") : answer("legacyTr:", key->text);
}

NSString* LocNumber(const NSNumber* number) {
    return LocNumberWithPositivePrefix(number, false);
}

NSString* LocNumberWithPositivePrefix(const NSNumber* number, bool needSign) {
    return number == nullptr ? NSStringCreate("") : answer("legacyTrNumber:needSign:", *number, needSign);
}

NSString* LocAge(NSInteger age) {
    return answer("legacyTrAge:", age);
}

NSString* LocPercent(CGFloat value) {
    return LocPercentSigned(value, false);
}

NSString* LocPercentSigned(CGFloat value, bool showPlus) {
    return answer("legacyTrPercent:showPlus:", value, showPlus);
}
