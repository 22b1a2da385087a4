// Generator/ReservedNames.h
// The names that generated code must not use, sorted, for Namer and the scanner of `lumora check`: the keywords and
// alternative tokens of C++20, and the macros defined by compilers and by the headers of C, C++, POSIX and the C
// library. Left out are macros
// - that begin with an underscore, because no generated name begins with an underscore and a letter;
// - that Namer.cpp recognizes: errors, signals and the number formats of <cinttypes>;
// - in capitals that only headers of POSIX define, such as IXON: a program that includes them needs another name for
//   such an asset;
// - with an underscore, if they are in capitals or from neither C nor C++: the naming rules drop underscores, so only a
//   table, a catalog, a module or a name that the team chose could be called like one.
// This command prints the macros of a header:
//     echo '#include <csignal>' | g++ -std=gnu++20 -dM -E -x c++ -
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace Generator::Namer {

// clang-format would use two columns.
// clang-format off
inline constexpr auto reservedNames = std::to_array<std::string_view>({
    "BUFSIZ", "CSIGNAL", "ElfW", "I", "INFINITY", "MAXFLOAT", "MINSIGSTKSZ", "NAN", "NFDBITS", "NGREG", "NSIG", "NULL",
    "NZERO", "SNAN", "SNANF", "SNANF128", "SNANF32", "SNANF32X", "SNANF64", "SNANF64X", "SNANL", "WCONTINUED", "WEOF",
    "WEXITED", "WEXITSTATUS", "WIFCONTINUED", "WIFEXITED", "WIFSIGNALED", "WIFSTOPPED", "WNOHANG", "WNOWAIT",
    "WSTOPPED", "WSTOPSIG", "WTERMSIG", "WUNTRACED", "alignas", "alignof", "alloca", "and", "and_eq", "asm", "assert",
    "auto", "basename", "be16toh", "be32toh", "be64toh", "bitand", "bitor", "bool", "break", "btodb", "case", "catch",
    "char", "char16_t", "char32_t", "char8_t", "class", "clrbit", "co_await", "co_return", "co_yield", "compl",
    "concept", "const", "const_cast", "consteval", "constexpr", "constinit", "continue", "dbtob", "decltype", "default",
    "delete", "direct", "do", "double", "dqoff", "dynamic_cast", "else", "enum", "errno", "explicit", "export",
    "extern", "false", "float", "for", "friend", "goto", "hostalias", "howmany", "htobe16", "htobe32", "htobe64",
    "htole16", "htole32", "htole64", "i386", "if", "inline", "int", "isascii", "isclr", "isset", "issubnormal",
    "le16toh", "le32toh", "le64toh", "linux", "long", "major", "makedev", "math_errhandling", "minor", "mutable",
    "namespace", "new", "noexcept", "noreturn", "not", "not_eq", "nsaddr", "nullptr", "offsetof", "operator", "or",
    "or_eq", "powerof2", "private", "protected", "public", "putlong", "putshort", "register", "reinterpret_cast",
    "requires", "return", "roundup", "setbit", "setjmp", "short", "sigmask", "signed", "sigsetjmp", "sizeof", "static",
    "static_assert", "static_cast", "stderr", "stdin", "stdout", "strdupa", "strndupa", "struct", "switch", "template",
    "this", "thread_local", "throw", "timeradd", "timerclear", "timercmp", "timerisset", "timersub", "toascii", "true",
    "try", "typedef", "typeid", "typename", "union", "unix", "unsigned", "using", "va_arg", "va_copy", "va_end",
    "va_start", "virtual", "void", "volatile", "wchar_t", "while", "xEOF", "xor", "xor_eq"});
// clang-format on
static_assert(std::ranges::is_sorted(reservedNames));

} // namespace Generator::Namer
