// Reads every text and prints the number of texts, their total size in bytes, and the growth, in KiB, of the resident
// memory and of its anonymous part, which other processes cannot share.
#include "all_texts.h"
#include <Foundation/Host.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

// The value of a field ("Rss:") in the kernel's report about this process's memory, in KiB.
long kibibytes(const std::string& field) {
    std::ifstream file("/proc/self/smaps_rollup");
    for (std::string word; file >> word;)
        if (long size = 0; word == field && file >> size)
            return size;
    return 0;
}

} // namespace

int main() {
    Foundation::Host::setPreferredLanguages({"ru"}); // Cyrillic letters take two bytes
    const long resident = kibibytes("Rss:"), anonymous = kibibytes("Anonymous:");
    int count = 0;
    const std::size_t size = readAllTexts(count);
    std::printf("%d %zu %ld %ld\n", count, size, kibibytes("Rss:") - resident, kibibytes("Anonymous:") - anonymous);
}
