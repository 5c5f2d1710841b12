#!/usr/bin/env bash
# Whether a guard has passed (its stamp is there) and no file below the folders has changed since.
# unchanged_since.sh STAMP FOLDER...
set -u
stamp=$1
shift
[ -e "$stamp" ] &&
    [ -z "$(find -L "$@" -path '*/build' -prune -o -path '*/.git' -prune -o -newer "$stamp" -type f -print -quit)" ]
