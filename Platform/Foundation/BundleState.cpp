#include "Foundation/internal/BundleState.h"

#include "Runtime/internal/Directory.h"
#include "Runtime/internal/Hash.h"
#include <algorithm>
#include <cerrno>
#include <ctime>
#include <limits>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Foundation::detail {

namespace {

constexpr std::int64_t second = 1'000'000'000; // in nanoseconds

// Since 1970; the years that 64 bits cannot hold are clamped.
std::int64_t nanoseconds(const timespec& time) noexcept {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max() / second - 1;
    return std::clamp<std::int64_t>(time.tv_sec, -largest, largest) * second + time.tv_nsec;
}

class StateHash {
public:
    // Adds the file or folder at the path, and the entries of a folder down to that depth. False on failure.
    bool add(const std::string& path, int depth) {
        struct stat found {};
        if (::stat(path.c_str(), &found) != 0)
            return false;
        addState(path, found);
        return !S_ISDIR(found.st_mode) || depth == 0 || addEntries(path, depth - 1);
    }

    // No value if a further change might have the same time as the latest one.
    std::optional<std::uint64_t> value() const {
        constexpr std::int64_t tick = second / 10; // longer than the clock ticks of Linux's own file systems
        timespec now{};
        ::clock_gettime(CLOCK_REALTIME, &now);
        return latest_ < nanoseconds(now) - tick ? std::optional(hash_) : std::nullopt;
    }

private:
    // A sum, because the order of a folder's entries does not matter.
    void addState(const std::string& path, const struct stat& found) {
        const std::int64_t modified = nanoseconds(found.st_mtim), changed = nanoseconds(found.st_ctim);
        latest_ = std::max({latest_, modified, changed});
        std::uint64_t own = Runtime::keyHash(path);
        for (const std::uint64_t field :
             {std::uint64_t{found.st_dev}, std::uint64_t{found.st_ino}, static_cast<std::uint64_t>(found.st_size),
              static_cast<std::uint64_t>(modified), static_cast<std::uint64_t>(changed)})
            own = Runtime::mixed(own ^ field, Runtime::hashSpread);
        hash_ += own;
    }

    bool addEntries(const std::string& folder, int depth) {
        const Runtime::Directory directory = Runtime::openDirectory(folder);
        if (directory == nullptr)
            return false;
        bool isComplete = true;
        const int failed = Runtime::forEachEntry(directory, [&](std::string_view name) {
            if (name != "." && name != "..")
                isComplete = isComplete && add(std::string(folder).append("/").append(name), depth);
        });
        return failed == 0 && isComplete;
    }

    std::uint64_t hash_ = 0;
    std::int64_t latest_ = 0;
};

} // namespace

std::optional<std::uint64_t> bundleState(const std::string& bundle) {
    constexpr int depth = 2; // language folders and their files
    if (::access(bundle.c_str(), F_OK) != 0 && errno == ENOENT)
        return 0;
    StateHash hash;
    return hash.add(bundle, depth) ? hash.value() : std::nullopt;
}

} // namespace Foundation::detail
