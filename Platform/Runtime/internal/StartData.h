// Runtime/internal/StartData.h
// The placement of static objects that every process uses for its first text.
#pragma once

// For a static object whose initial value is zeros: places it beside initialized data, on a page that the dynamic
// linker writes to in any case. Zeroed memory costs one page fault for the first read and one for the first write.
#define LUMORA_START_DATA [[gnu::section(".data.start")]]
