#!/bin/sh
# Plays one script in a folder of its own: run_script.sh DRIVE DATA SCRIPT
set -e
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
"$1" --seed 7 --home "$home" --data "$2" "$3"
