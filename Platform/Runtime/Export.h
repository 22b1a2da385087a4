// Runtime/Export.h
// Marks what the shared library shows to the world; everything else is compiled hidden.
#pragma once

#define LUMORA_EXPORT __attribute__((visibility("default")))
