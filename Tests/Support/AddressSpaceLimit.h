// Tests/Support/AddressSpaceLimit.h
// Makes allocations and mappings of the process fail for a while.
#pragma once

#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

namespace Support {

// Limits the address space until the destructor restores the old limit. With sanitizers, which need all addresses, the
// process would stop.
class AddressSpaceLimit {
public:
    // Allows `room` bytes more than are in use now.
    explicit AddressSpaceLimit(rlim_t room) {
        ::getrlimit(RLIMIT_AS, &old_);
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        rlimit limit = old_;
        limit.rlim_cur = pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + room;
        ::setrlimit(RLIMIT_AS, &limit);
    }
    AddressSpaceLimit(const AddressSpaceLimit&) = delete;
    AddressSpaceLimit& operator=(const AddressSpaceLimit&) = delete;
    ~AddressSpaceLimit() { ::setrlimit(RLIMIT_AS, &old_); }

private:
    rlimit old_{};
};

} // namespace Support
