#!/bin/sh
# The window is closed on every screen of the chain, one run each, and the program ends every time
# with nothing lost: closed_at_each_depth.sh DRIVE DATA
set -e
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

close_here() {
	cp "$work/way" "$work/run"
	echo quit >> "$work/run"
	timeout 60 "$1" --seed 3 --home "$work/home$3" --data "$2" "$work/run"
	for file in PROFILE1v5.DAT QUORBLETv5.DAT; do
		test -s "$work/home$3/Ondrel/Quorblet Data/$file"
	done
}

step() {
	cat >> "$work/way"
	depth=$((depth + 1))
	close_here "$drive" "$data" "$depth"
}

drive=$1
data=$2
depth=0
: > "$work/way"
step <<'END'
until screen = CControllerMain within 900
wait 90
END
step <<'END'
key right
wait 3
key return
until screen = CControllerGameType within 120
wait 10
END
step <<'END'
key right
wait 3
key return
until screen = CControllerMap within 60
wait 5
END
step <<'END'
key return
until screen = CControllerMapGroup1 within 60
wait 90
END
step <<'END'
key return
until screen = CControllerInstructionsSmall within 60
wait 3
END
step <<'END'
key return
until state = play within 400
END
step <<'END'
key escape
until screen = CControllerInGame within 5
wait 3
END
step <<'END'
click 400 263
until screen = CControllerOptions within 20
wait 3
END
step <<'END'
click 390 447
until screen = CControllerOptionsControls within 20
wait 3
END
