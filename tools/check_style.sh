#!/bin/sh
# What the formatter and a few plain searches can tell about the sources: check_style.sh ROOT
cd "$1" || exit 1
status=0

files=$(git ls-files -- '*.cpp' '*.h')
if command -v clang-format >/dev/null; then
	for file in $files; do
		clang-format --dry-run --Werror "$file" >/dev/null 2>&1 || {
			echo "$file: not formatted (clang-format -i $file)"
			status=1
		}
	done
fi

# Chance and time have one door each.
if git grep -nE '\b(rand|srand|time|SDL_GetTicks|SDL_Delay|clock)\s*\((0|nullptr|NULL)?\)' -- src |
	grep -v '^src/frame/clock\.cpp:'; then
	echo "use frame/random.h and frame/clock.h"
	status=1
fi

# Every header guards itself, every file says what it is for.
for file in $files; do
	case $(head -n 1 "$file") in
	"// "*) ;;
	*)
		echo "$file: the first line tells the purpose of the file"
		status=1
		;;
	esac
done
for file in $(git ls-files -- '*.h'); do
	grep -q '^#pragma once' "$file" || {
		echo "$file: #pragma once is missing"
		status=1
	}
done
exit $status
