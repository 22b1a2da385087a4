// xmlParser() of the platform, which loads the plug-in.
#include "StringTables/internal/XmlParser.h"

#include "Runtime/internal/Plugin.h"
#include <atomic>

namespace StringTables::internal {

// A failure is not remembered: the process may be out of descriptors for the moment.
Runtime::Result<XmlParser*> xmlParser() {
    static constinit std::atomic<XmlParser*> loaded{nullptr};
    if (XmlParser* const known = loaded.load(std::memory_order_acquire))
        return known;
    const Runtime::ForkGuard guard;
    const auto entry = Runtime::pluginSymbol(guard, "lumora-xml.so", "lumoraXml");
    if (!entry)
        return entry.error();
    XmlParser* const opened = reinterpret_cast<decltype(&lumoraXml)>(*entry)();
    loaded.store(opened, std::memory_order_release); // the same function for every thread
    return opened;
}

} // namespace StringTables::internal
