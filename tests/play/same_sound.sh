#!/bin/sh
# The same seed and script sound the same, to the last sample: same_sound.sh DRIVE DATA
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
wait 300
END
for run in 1 2; do
	"$1" --seed 99 --home "$work/home$run" --data "$2" --sound "$work/$run.wav" "$work/script"
done
cmp "$work/1.wav" "$work/2.wav"
# Silence would be all zeros but for the head of the file.
test "$(tail -c +1000 "$work/1.wav" | tr -d '\000' | wc -c)" -gt 100000
