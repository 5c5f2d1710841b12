#!/usr/bin/env bash
# The library exports its classes, the functions of the public headers and the version symbols, nothing
# else, and all of them.  exports.sh LIBRARY HEADER_LIST
set -u
library=$1 list=$2
headers=$(cat "$list")
exported=$(nm -D --defined-only "$library" | awk '{print $3}' | sort)
classes=$(grep -hE '^@interface ZEB_[A-Za-z_0-9]+ :' $headers | sed -E 's/^@interface (ZEB_[A-Za-z_0-9]+) .*/\1/' | sort -u)
functions=$(grep -hoE '^ZEB_EXPORT [^;(]*\b[A-Za-z_0-9]+\(' $headers | sed -E 's/.*[ *]([A-Za-z_0-9]+)\($/\1/' | sort -u)
failed=0
for name in $functions Korvane_ZEBVersionNumber Korvane_ZEBVersionString; do
    grep -qx "$name" <<<"$exported" || { echo "not exported: $name"; failed=1; }
done
for class in $classes; do
    grep -qE "^(__objc_class_name_|_OBJC_CLASS_)$class\$" <<<"$exported" || { echo "not exported: $class"; failed=1; }
done
while read -r name; do
    plain=$(sed -E 's/^(__objc_class_name_|_OBJC_(META)?CLASS_)//' <<<"$name")
    grep -qxE 'Korvane_ZEBVersion(Number|String)' <<<"$plain" ||
        grep -qx "$plain" <<<"$functions"$'\n'"$classes" || { echo "exported besides: $name"; failed=1; }
done <<<"$exported"
exit $failed
