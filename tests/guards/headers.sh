#!/usr/bin/env bash
# Every public header compiles alone: as Objective-C with gcc and as Objective-C++ with clang, the plain ones as
# C and C++; the one that includes all in all four ways. What is said of null and of ownership: arc.sh.
# headers.sh LIST INCLUDE
set -u
list=$1 include=$2
guards=$(dirname "$0")
stamp=$list.passed
"$guards/unchanged_since.sh" "$stamp" "$include" "$guards" && exit 0
grep -En '^#(import|include) "' $(cat "$list") && { echo "quoted includes in public headers"; exit 1; }

compile_alone() { # PATH
    local path=$1 name line status=0
    name=$(basename "$path") line="#import <Korvane_ZEB/$(basename "$path")>"
    local strict=(-fsyntax-only -Wall -Wextra -Werror "-I$include")
    local gnustep=(-DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -fexceptions -fobjc-exceptions
                   -fconstant-string-class=NSConstantString -isystem /usr/include/GNUstep)
    local clang=(-fobjc-runtime=gcc -idirafter "$(g++ -print-file-name=include)")
    compiles() { "$@" - <<<"$line" || { echo "not alone: <Korvane_ZEB/$name> with: $*"; status=1; }; }
    if [[ $name != *.hpp ]] &&
       ! grep -qE '^#(import|include) <(Foundation/|objc/|Korvane_ZEB/(ZEB_Object|Korvane_ZEB)\.h)|^@' "$path" &&
       g++ -x c++ "-I$include" -fsyntax-only "$path" 2>/dev/null; then
        line=${line/import/include}$'\n''extern int anything;' # macros alone are no translation unit in C
        compiles gcc -x c -std=c11 -pedantic "${strict[@]}"
        compiles g++ -x c++ -std=c++11 -pedantic "${strict[@]}"
    elif [[ $name == *.hpp ]]; then
        compiles g++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}"
        compiles clang++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}" "${clang[@]}"
    else
        compiles gcc -x objective-c -std=gnu11 "${strict[@]}" "${gnustep[@]}"
        compiles clang++ -x objective-c++ -std=c++17 "${strict[@]}" "${gnustep[@]}" "${clang[@]}"
    fi
    if [[ $name == Korvane_ZEB.h ]]; then
        compiles g++ -x objective-c++ -std=c++20 "${strict[@]}" "${gnustep[@]}"
        compiles clang -x objective-c -std=gnu11 "${strict[@]}" "${gnustep[@]}" "${clang[@]}"
    fi
    return $status
}
export include
export -f compile_alone

{ "$guards/one_of_each_kind.sh" < "$list"; echo "$include/Korvane_ZEB/Korvane_ZEB.h"
  echo "$include/Korvane_ZEB/Korvane_ZEB_C.h"; } | sort -u |
    xargs -P "$(nproc)" -I{} bash -c 'compile_alone "$1"' - {} && touch "$stamp"
