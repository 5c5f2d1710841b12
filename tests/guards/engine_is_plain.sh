#!/usr/bin/env bash
# The engine reaches no Objective-C: every engine header compiles alone as plain C++ with both compilers,
# and none names a class header.  engine_is_plain.sh SOURCE INCLUDE
set -u
guards=$(cd "$(dirname "$0")" && pwd)
cd "$1" || exit 1
include=$2
failed=0
stamp=$include/../engine_is_plain.passed
"$guards/unchanged_since.sh" "$stamp" . && exit 0
headers=$(find . -path ./build -prune -o -path '*/engine/*.hpp' -print)
sources=$(find . -path ./build -prune -o -path '*/engine/*.cpp' -print)
grep -nE '^#import|Foundation/|objc/' $headers $sources && failed=1
grep -nE '<Korvane_ZEB/' $headers $sources | grep -vE 'ZEB_(Types|Version)\.h' && failed=1
for header in $headers; do
    [[ $header == *-inl.hpp ]] && continue # made to be included under a vector target
    for compiler in g++ clang++; do
        $compiler -x c++ -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I. "-I$include" - \
            <<<"#include \"${header#./}\"" || { echo "not alone with $compiler: $header"; failed=1; }
    done
done
[ $failed -eq 0 ] && touch "$stamp"
exit $failed
