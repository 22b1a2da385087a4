// Generator/ModuleTemplates.h
// The constant first part of NAME.h, the header that includes a whole module.
#pragma once

#include <string_view>

namespace Generator {

// Generator.cpp adds the headers of hand-written parts and "#endif // C++20".
inline constexpr std::string_view moduleHeaderBegin = R"(// The whole module.
#pragma once

#if __cplusplus < 202002L
#error "{{module}} needs C++20: compile with -std=c++20 or later"
#else

#include "{{module}}Asset.h"
#include "{{module}}Conveniences.h"
#include "{{module}}Resources.h"
#include "{{module}}Strings.h"

#include "Foundation/Host.h"
#include "Foundation/NSBundle.h"
#ifdef __cpp_rtti // messages need it
#include "Runtime/Class.h"
#endif)";

} // namespace Generator
