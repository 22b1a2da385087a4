// The only function that the plug-in exports.
#include "StringTables/internal/XmlParser.h"

StringTables::internal::XmlParser* lumoraXml() noexcept {
    return &StringTables::internal::parseByExpat;
}
