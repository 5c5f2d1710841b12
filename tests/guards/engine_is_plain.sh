#!/usr/bin/env bash
# The engine reaches no Objective-C: every engine header compiles alone as plain C++, all of them together with
# the other compiler, and none names a class header.  engine_is_plain.sh SOURCE INCLUDE
set -u
guards=$(cd "$(dirname "$0")" && pwd)
cd "$1" || exit 1
include=$2
stamp=$include/../engine_is_plain.passed
"$guards/unchanged_since.sh" "$stamp" . && exit 0
headers=$(find . -path ./build -prune -o -path '*/engine/*.hpp' -print)
sources=$(find . -path ./build -prune -o -path '*/engine/*.cpp' -print)
grep -nE '^#import|Foundation/|objc/' $headers $sources && exit 1
grep -nE '<Korvane_ZEB/' $headers $sources | grep -vE 'ZEB_(Types|Version|Arrow_Structs)\.h' && exit 1
headers=$(grep -v -- '-inl\.hpp$' <<<"$headers") # those are made to be included under a vector target
plain="-x c++ -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I. -I$include -"
sed 's|^\./\(.*\)|#include "\1"|' <<<"$headers" | clang++ $plain || exit 1
sed 's|^\./||' <<<"$headers" | xargs -P "$(nproc)" -I{} sh -c \
    "echo '#include \"{}\"' | g++ $plain || { echo 'not alone: {}'; exit 1; }" && touch "$stamp"
