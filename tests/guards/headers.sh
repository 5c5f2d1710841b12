#!/usr/bin/env bash
# Every public header compiles alone: as Objective-C and Objective-C++ with both compilers, the plain ones
# as C and C++ too.  headers.sh LIST INCLUDE
set -u
list=$1 include=$2
gnustep=(-DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -fexceptions -fobjc-exceptions
         -fconstant-string-class=NSConstantString -isystem /usr/include/GNUstep)
gcc_headers=$(g++ -print-file-name=include)
clang=(-fobjc-runtime=gcc -idirafter "$gcc_headers")
strict=(-fsyntax-only -Wall -Wextra -Werror "-I$include")
failed=0
stamp=$list.passed
"$(dirname "$0")/unchanged_since.sh" "$stamp" "$include" && exit 0

compiles() { # COMPILER... < source on standard input
    "$@" - || { echo "not alone: <Korvane_ZEB/$name> with: $*"; failed=1; }
}

while read -r path; do
    name=$(basename "$path")
    import="#import <Korvane_ZEB/$name>"
    if [[ $name == *.hpp ]]; then
        compiles g++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}" <<<"$import"
        compiles clang++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}" "${clang[@]}" <<<"$import"
        continue
    fi
    if grep -qE '^#(import|include) <(Foundation/|objc/|Korvane_ZEB/(ZEB_Object|Korvane_ZEB)\.h)|^@' "$path" ||
       ! g++ -x c++ "-I$include" -fsyntax-only "$path" 2>/dev/null; then
        compiles gcc -x objective-c -std=gnu11 "${strict[@]}" "${gnustep[@]}" <<<"$import"
        compiles g++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}" <<<"$import"
        compiles clang -x objective-c -std=gnu11 "${strict[@]}" "${gnustep[@]}" "${clang[@]}" <<<"$import"
        compiles clang++ -x objective-c++ -std=c++17 "${strict[@]}" "${gnustep[@]}" "${clang[@]}" <<<"$import"
    else
        include_line="#include <Korvane_ZEB/$name>"
        compiles gcc -x c -std=c11 -pedantic "${strict[@]}" <<<"$include_line"
        compiles g++ -x c++ -std=c++11 -pedantic "${strict[@]}" <<<"$include_line"
    fi
done < "$list"
gcc -x c -std=c11 -pedantic "${strict[@]}" - <<<'#include <Korvane_ZEB/Korvane_ZEB_C.h>' || failed=1
grep -En '^#(import|include) "' $(cat "$list") && { echo "quoted includes in public headers"; failed=1; }
[ $failed -eq 0 ] && touch "$stamp"
exit $failed
