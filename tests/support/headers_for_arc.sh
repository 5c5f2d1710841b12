#!/usr/bin/env bash
# Makes a folder of the gcc runtime's headers that stand automatic reference counting, to be searched before them:
# one function looks into an object, which is not allowed then.  headers_for_arc.sh FOLDER
set -eu
folder=$1/objc
headers=$(g++ -print-file-name=include)/objc
mkdir -p "$folder"
ln -sf "$headers"/* "$folder"
rm "$folder/runtime.h"
sed 's/return object->class_pointer;/return *(Class *)(__bridge void *)object;/' "$headers/runtime.h" \
    >"$folder/runtime.h"
