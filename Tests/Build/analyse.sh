#!/usr/bin/env bash
# Everything that can be found without a case of its own: three compilers with their warnings as errors, clang-tidy,
# cppcheck, valgrind. Ends at the first fault. `./run analyse` installs what it needs.
set -euo pipefail
cd "$(dirname "$0")/../.."
written=(Platform Lumora Tools Tests Fuzz Examples) # by hand; build/ holds what is generated

step() { printf '%4ds  %s\n' "$SECONDS" "$1"; }

for preset in gcc-12 clang-14 clang-16; do
    step "build with $preset"
    cmake --preset "$preset" -DBUILD_TESTING=ON >/dev/null
    cmake --build --preset "$preset" -- -j2 --quiet
done

# clang-tidy names every file it reads, and how much it passed over in other people's headers; a fault is an "error:".
# The golden files are generated ones.
step "clang-tidy"
folders=$(IFS='|'; echo "${written[*]}")
if ! run-clang-tidy-14 -quiet -j 2 -p build/clang-14 "^$PWD/($folders)/(?!Generator/Golden/)" >build/clang-tidy.log 2>&1; then
    grep -A6 'error:' build/clang-tidy.log || tail -n 20 build/clang-tidy.log
    exit 1
fi

# cppcheck reads no identifiers beyond ASCII: the golden files have them, and the test of the whole tree.
step "cppcheck"
cppcheck -q -j2 --std=c++20 --library=googletest --enable=warning,performance,portability,style --inline-suppr \
    --error-exitcode=1 --suppressions-list=Tests/Build/cppcheck-suppressions.txt -I . -I Platform -I Tools \
    -i Tests/Generator/Golden -i Tests/Lumora/catalog_test.cpp "${written[@]}"

# What lives until the process ends is found through pointers and is no leak. Passed over:
# - long double, which valgrind computes with 64 bits;
# - the comparisons with ICU in every locale, minutes there: the same code runs in the other cases of these tests;
# - death tests, whose processes stop with their memory in hand;
# - a lack of memory, whose tests put their own allocator where valgrind puts its.
passedOver=-*DeathTest*:Describable.FloatingNumbersHaveTheFewestExactDigits:*MatchIcuInEveryLocale:NoMemory.*
memcheck() {
    step "valgrind ${1##*/}"
    valgrind -q --leak-check=full --show-leak-kinds=definite,indirect --errors-for-leak-kinds=definite,indirect \
        --error-exitcode=1 "$@" >build/valgrind.log 2>&1 || { tail -n 60 build/valgrind.log; exit 1; }
}
for test in build/gcc-12/{bin,lib}/*_test; do
    memcheck "$test" --gtest_filter="$passedOver"
done
memcheck build/gcc-12/bin/demo build/contact-sheet.png
step "nothing found"
