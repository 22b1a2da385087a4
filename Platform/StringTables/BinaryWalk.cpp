// Reads binary property lists into a sink.
#include "StringTables/internal/BinaryObjects.h"
#include "StringTables/internal/PropertyListSink.h"
#include <unordered_map>

namespace StringTables::internal {

namespace {

// Reports the entries of a binary property list to a sink. A dictionary may be the value of several entries, even of
// its own: the sink limits the depth and the number of entries.
class BinaryWalk {
public:
    BinaryWalk(Contents& contents, PropertyListSink& sink) : objects_(contents), sink_(sink) {}

    Runtime::Result<void> run() {
        BinaryObjects::Object top;
        if (!objects_.open() || !objects_.top(top) || !entries(top))
            return std::move(objects_.error());
        return {};
    }

private:
    using Object = BinaryObjects::Object;

    // Reports the entries of a dictionary that top() or members() has read.
    bool entries(const Object& dictionary) {
        if (!sink_.beginDictionary())
            return true;
        for (std::size_t i = 0; i < dictionary.count; ++i)
            if (!key(objects_.keyAt(dictionary, i)) || !value(objects_.valueAt(dictionary, i)))
                return false;
        sink_.endDictionary();
        return true;
    }

    bool key(std::size_t referenceAt) {
        Object object;
        std::string_view text;
        const std::uint64_t number = objects_.reference(referenceAt);
        if (!objects_.object(number, referenceAt, object))
            return false;
        if (!object.isString())
            return objects_.fail(object.at, "expected a string as key");
        return string(number, object, text) && accepted(sink_.key(text, object.at), object);
    }

    bool value(std::size_t referenceAt) {
        Object object;
        const std::uint64_t number = objects_.reference(referenceAt);
        if (!objects_.object(number, referenceAt, object))
            return false;
        if (object.isString()) {
            std::string_view text;
            return string(number, object, text) && accepted(sink_.string(text), object);
        }
        if (object.type == BinaryObjects::dictionary)
            return objects_.members(number, object) && entries(object);
        const char* const what = BinaryObjects::describe(object.type);
        if (what == nullptr)
            return objects_.fail(object.at, "an object of an unknown type");
        sink_.other(what);
        return true;
    }

    bool string(std::uint64_t number, Object& object, std::string_view& out) {
        if (const auto known = strings_.find(number); known != strings_.end()) {
            out = known->second;
            return true;
        }
        if (!objects_.string(number, object, out))
            return false;
        strings_.emplace(number, out);
        return true;
    }

    // `error`: what the sink returned.
    bool accepted(const char* error, const Object& object) {
        return error == nullptr || objects_.fail(object.at, error);
    }

    BinaryObjects objects_;
    PropertyListSink& sink_;
    std::unordered_map<std::uint64_t, std::string_view> strings_;
};

} // namespace

Runtime::Result<void> readBinary(Contents& contents, PropertyListSink& sink) {
    return BinaryWalk(contents, sink).run();
}

} // namespace StringTables::internal
