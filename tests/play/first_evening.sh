#!/bin/sh
# A first evening: a new player, level 1 from the map, won and tallied, every way out of the pause
# menu; then the program is started again and all of it is still there: first_evening.sh DRIVE DATA
set -e
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# From the main menu by Play to the dots of the first islands, as a new run.
cat > "$work/way" <<'END'
key right
wait 3
key return
until screen = CControllerGameType within 120
wait 10
key right
wait 3
key return
until screen = CControllerMap within 60
wait 5
key return
until screen = CControllerMapGroup1 within 60
wait 90
END

cat > "$work/first.form" <<'END'
until screen = CControllerMain within 900
wait 90
click 55 52                       # the player's name
until screen = CControllerProfile within 60
wait 5
click 365 370                     # a new one
until screen = CControllerName within 60
wait 3
key a
key d
key a
wait 2
key return
until screen = CControllerProfile within 20
wait 5
click 366 314                     # which is to play
until screen = CControllerMain within 60
wait 90
MENU_TO_ISLANDS
key return                        # Play: the level that comes next
until level = 1 within 60
until screen = CControllerInstructionsSmall within 60
wait 3
key return
until state = play within 400

key escape                        # on with it
until screen = CControllerInGame within 5
wait 2
key escape
until screen = CControllerGame within 5
wait 5
key escape                        # back to the map
until screen = CControllerInGame within 5
move 5 5
wait 2
key up
wait 2
key up
wait 2
key return
until screen = CControllerMapGroup1 within 30
wait 90
expect done.1 = 0
key return
until state = play within 400
key escape                        # to the main menu, past the map
until screen = CControllerInGame within 5
move 5 5
wait 2
key up
wait 2
key return
until screen = CControllerMain within 30
wait 90
MENU_TO_ISLANDS
key return
until state = play within 400
bot on
until screen = CControllerLevelTally within 40000
bot off
wait 10
key escape                        # do not count
wait 30
key right
wait 3
key right
wait 3
key return                        # go on
until screen = CControllerMapGroup1 within 60
expect done.1 = 1
wait 90
show score
END

cat > "$work/second" <<'END'
until screen = CControllerMain within 900
wait 90
expect done.1 = 1
show score
key right
wait 3
key return
until screen = CControllerGameContinue within 120
wait 10
key right
wait 3
key return
until screen = CControllerMapGroup1 within 60
wait 90
key return
until level = 2 within 60
until state = play within 400
bot on
until screen = CControllerLevelTally within 60000
bot off
wait 10
key escape                        # do not count
wait 30
key right
wait 3
key right
wait 3
key right
wait 3
key return                        # to the main menu, which takes keys as ever
until screen = CControllerMain within 60
wait 90
key right
wait 3
key return
until screen = CControllerGameContinue within 120
quit
END

sed -e "/MENU_TO_ISLANDS/{r $work/way" -e "d}" "$work/first.form" > "$work/first"
"$1" --seed 5 --home "$work/home" --data "$2" "$work/first" > "$work/score.1"
"$1" --seed 6 --home "$work/home" --data "$2" "$work/second" > "$work/score.2"
cmp "$work/score.1" "$work/score.2"
grep -q "score=[1-9]" "$work/score.1"
