#!/usr/bin/env bash
# Every class file passes under the rules of Apple's runtime.  apple_runtime.sh SOURCE BUILD
set -u
source=$1 build=$2
gcc_headers=$(g++ -print-file-name=include)
failed=0
stamp=$build/apple_runtime.passed
"$(dirname "$0")/unchanged_since.sh" "$stamp" "$source" "$build/generated" && exit 0
for file in $(find "$source" -name '*.mm' -not -path '*/templates/*' -not -path '*/build/*' -not -path '*/tests/*' -not -path '*/benchmarks/*') \
            $(find "$build/generated" -name '*.mm' -not -path '*/tests/*'); do
    clang++ -fsyntax-only -std=c++20 -Wall -fobjc-runtime=macosx-10.11 -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 \
        -DZEB_BUILDING_FRAMEWORK -fexceptions -fobjc-exceptions -isystem /usr/include/GNUstep \
        -idirafter "$gcc_headers" "-I$source" "-I$build/generated" "-I$build/include" "$file" ||
        { echo "not for Apple's runtime: $file"; failed=1; }
done
[ $failed -eq 0 ] && touch "$stamp"
exit $failed
