// The plug-in's only function.
#include "StringTables/internal/XmlParser.h"

StringTables::internal::XmlParser* lumoraXml() noexcept {
    return &StringTables::internal::parseByExpat;
}
