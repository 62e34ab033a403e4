#!/bin/sh
# Installs the packages of packages.txt that are missing. Asks nothing; as root, or with sudo.
set -u
here=$(cd "$(dirname "$0")" && pwd)

wanted=$(sed -e 's/#.*//' "$here/packages.txt")
# A machine that has the classic library keeps it: the two development packages exclude each other.
if dpkg-query -W -f='${Status}' libsdl1.2-dev 2>/dev/null | grep -q 'ok installed'; then
	wanted=$(echo "$wanted" | grep -v libsdl1.2-compat-dev)
fi

missing=""
for package in $wanted; do
	dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
		missing="$missing $package"
done
[ -z "$missing" ] && exit 0

sudo=""
if [ "$(id -u)" != 0 ]; then
	command -v sudo >/dev/null || {
		echo "These packages are missing, and neither root nor sudo is at hand:$missing"
		exit 1
	}
	sudo=sudo
fi

echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq || true
# One by one only when all together fail, so that the line names the one that cannot be had.
$sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null 2>&1 && exit 0
failed=""
for package in $missing; do
	$sudo apt-get install -y -qq --no-install-recommends "$package" >/dev/null 2>&1 ||
		failed="$failed $package"
done
[ -z "$failed" ] && exit 0
echo "These packages cannot be had:$failed"
exit 1
