#!/usr/bin/env bash
# No method holds an algorithm: loops stand in the engine or in plain functions.
# methods_hold_no_loops.sh SOURCE
set -u
cd "$1" || exit 1
find . -path ./build -prune -o -path ./tests -prune -o -path ./examples -prune -o -path ./benchmarks -prune \
    -o -name '*.mm' -print | xargs awk '
    FNR == 1 { method = 0 }
    /^[-+] \(/ { method = 1 }
    /^}/ { method = 0 }
    method && /(^|[^_a-z])(for|while|do) *[({]|^ *do$/ { print FILENAME ":" FNR ": " $0; found = 1 }
    END { exit found }'
