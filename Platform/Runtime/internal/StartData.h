// Runtime/internal/StartData.h
// The placement of static objects that every process uses for its first text.
#pragma once

// For a static object whose initial value is zeros: places it with initialized data, on a page that the dynamic linker
// always writes to. In .bss it would cause a page fault at the first read and another at the first write.
#define LUMORA_START_DATA [[gnu::section(".data.start")]]
