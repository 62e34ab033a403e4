#!/bin/sh
# The same seed and script give the same run, to the last field: same_run.sh DRIVE DATA
set -e
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cat > "$work/script" <<'END'
until screen = CControllerMain within 900
level 1
until screen = CControllerInstructionsSmall within 30
wait 2
key return
bot on
wait 1500
dump field.txt
show
END
for run in 1 2; do
	mkdir -p "$work/$run"
	sed "s|field.txt|$work/$run/field.txt|" "$work/script" > "$work/$run/script"
	"$1" --seed 99 --home "$work/$run/home" --data "$2" "$work/$run/script" > "$work/$run/shown"
done
cmp "$work/1/field.txt" "$work/2/field.txt"
cmp "$work/1/shown" "$work/2/shown"
test -s "$work/1/field.txt"
