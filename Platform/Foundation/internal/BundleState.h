// Foundation/internal/BundleState.h
// Recognizes whether the files of a bundle have changed; internal.
// Text: paths are raw bytes. Threads: any; no state. Errors: std::bad_alloc.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Foundation::detail {

// A hash of the names, devices, inodes, sizes and times of a bundle, of the files and folders in it, and of what those
// folders contain, which includes all tables; 0 if there is no bundle. No value if a file cannot be inspected, or if
// one has just changed or has a time in the future: a further change might then have the same time.
[[nodiscard]] std::optional<std::uint64_t> bundleState(const std::string& bundle);

} // namespace Foundation::detail
