#!/usr/bin/env bash
# Builds Tafelquell and starts it on a copy of the example grade book, in a profile of its own below build/, so that
# trying it out touches nothing of the user's. Without a display it walks through the main job by itself.
#   ./run.sh          start, or go on where the last try ended
#   ./run.sh --neu    the same with a fresh copy of the example
set -euo pipefail
cd "$(dirname "$0")"
. tools/dependencies.sh

dependencies_install build
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || dependencies_install test
echo "Tafelquell wird gebaut ..."
cmake --preset release >build-log.tmp 2>&1 || { cat build-log.tmp; rm -f build-log.tmp; exit 1; }
rm -f build-log.tmp
cmake --build --preset release --target tafelquell
cmake --install build/release --prefix "$PWD/build/probe/programm" >/dev/null

. tools/profile.sh
if [ "${1:-}" = "--neu" ]; then rm -rf build/probe/profil; fi
profile_make "$PWD/build/probe/profil" "$PWD/data/Beispiel.txt"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Tafelquell startet mit einer Kopie des Beispiels: build/probe/profil/Beispiel.txt"
  exec build/probe/programm/bin/tafelquell
fi
echo "Hier ist kein Bildschirm: der Rundgang läuft von selbst auf einem virtuellen."
exec tests/program/rundgang.sh "$PWD/build/probe/programm/bin/tafelquell" "$PWD/build/probe/rundgang"
