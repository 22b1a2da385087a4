// The functions of Scan.h as on processors without SSE2, under names of their own.
#undef __SSE2__
#define findEither findEitherPlain
#define skipAscii skipAsciiPlain
#define isAscii isAsciiPlain
#include "StringTables/internal/Scan.h"

namespace PlainScan {

const char* either(const char* at, const char* end, char a, char b) {
    return StringTables::internal::findEitherPlain(at, end, a, b);
}
const char* ascii(const char* at, const char* end) {
    return StringTables::internal::skipAsciiPlain(at, end);
}

} // namespace PlainScan
