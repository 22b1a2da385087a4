// xmlParser() of programs that link the parser.
#include "StringTables/internal/XmlParser.h"

namespace StringTables::internal {

Runtime::Result<XmlParser*> xmlParser() {
    return &parseByExpat;
}

} // namespace StringTables::internal
