#!/usr/bin/env bash
# Every class file passes under the rules of Apple's runtime.  apple_runtime.sh SOURCE BUILD
set -u
source=$1 build=$2
guards=$(dirname "$0")
stamp=$build/apple_runtime.passed
"$guards/unchanged_since.sh" "$stamp" "$source" "$build/generated" && exit 0
compile=(clang++ -std=c++20 -Wall -fobjc-runtime=macosx-10.11 -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1
         -DZEB_BUILDING_FRAMEWORK -fexceptions -fobjc-exceptions -isystem /usr/include/GNUstep
         -idirafter "$(g++ -print-file-name=include)"
         "-I$source" "-I$source/examples/series" "-I$build/generated" "-I$build/include")
"${compile[@]}" -x objective-c++-header "$source/core/outside_headers.hpp" -o "$build/apple_runtime.pch" || exit 1
{ find "$source" \( -name templates -o -name build -o -name tests -o -name benchmarks \) -prune -o -name '*.mm' -print
  find "$build/generated" -name tests -prune -o -name '*.mm' -print | "$guards/one_of_each_kind.sh"; } |
    xargs -P "$(nproc)" -n 1 "${compile[@]}" -include-pch "$build/apple_runtime.pch" -fsyntax-only && touch "$stamp"
