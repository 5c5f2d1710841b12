#!/usr/bin/env bash
# The expansion of the templates for bytes is the one that was last looked at.
# golden_expansion.sh SOURCE GENERATED
set -u
golden=$1/tests/golden generated=$2
failed=0
for file in "$golden"/*; do
    diff <(sed '1{/^#line/d}' "$generated/$(basename "$file" .golden)") "$file" || failed=1
done
if [ $failed -ne 0 ]; then
    echo "If the change is meant, refresh the golden files with: ./run golden"
fi
exit $failed
