#!/usr/bin/env bash
# Builds with three compilers and warnings as errors, then runs clang-tidy, cppcheck, and the tests with valgrind. Stops
# at the first error. `./run analyse` installs the tools.
set -euo pipefail
cd "$(dirname "$0")/../.."
handWritten=(Platform Lumora Tools Tests Fuzz Examples) # not Benchmarks, which need libraries that are not installed

step() { printf '%4ds  %s\n' "$SECONDS" "$1"; }

for preset in gcc-12 clang-14 clang-16; do
    step "build with $preset"
    cmake --preset "$preset" -DBUILD_TESTING=ON >/dev/null
    cmake --build --preset "$preset" -- -j2 --quiet
done

# clang-tidy prints every file that it reads, and the number of suppressed warnings; a finding has "error:".
# The golden files are generated.
step "clang-tidy"
folders=$(IFS='|'; echo "${handWritten[*]}")
if ! run-clang-tidy-14 -quiet -j 2 -p build/clang-14 "^$PWD/($folders)/(?!Generator/Golden/)" >build/clang-tidy.log 2>&1; then
    grep -A6 'error:' build/clang-tidy.log || tail -n 20 build/clang-tidy.log
    exit 1
fi

# cppcheck cannot read non-ASCII identifiers, which are in the golden files and in the test of the accessors.
step "cppcheck"
cppcheck -q -j2 --std=c++20 --library=googletest --enable=warning,performance,portability,style --inline-suppr \
    --error-exitcode=1 --suppressions-list=Tests/Build/cppcheck-suppressions.txt -I . -I Platform -I Tools \
    -i Tests/Generator/Golden -i Tests/Lumora/accessors_test.cpp "${handWritten[@]}"

# Objects that live until the process ends are reachable and are not leaks. Not run:
# - long double, which valgrind computes with 64 bits;
# - the comparisons with ICU in every locale, which would take minutes; the other test cases run the same code;
# - death tests, whose processes stop without freeing memory;
# - tests of a lack of memory, which replace the allocator, as valgrind does.
notRun=-*DeathTest*:Describable.FloatingNumbersHaveTheFewestExactDigits:*MatchIcuInEveryLocale:NoMemory.*
memcheck() {
    step "valgrind ${1##*/}"
    valgrind -q --leak-check=full --show-leak-kinds=definite,indirect --errors-for-leak-kinds=definite,indirect \
        --error-exitcode=1 "$@" >build/valgrind.log 2>&1 || { tail -n 60 build/valgrind.log; exit 1; }
}
for test in build/gcc-12/{bin,lib}/*_test; do # lib/ has the tests that load plug-ins from the folder beside them
    memcheck "$test" --gtest_filter="$notRun"
done
memcheck build/gcc-12/bin/demo build/contact-sheet.png
step "nothing found"
