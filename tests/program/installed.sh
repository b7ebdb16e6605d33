#!/usr/bin/env bash
# The installed tree works by itself: all delivered files are there, the program starts from it with a fresh profile, finds its
# parameter file and phrases, and opens a grade book. Nothing of the build or source folder is used.
#   tests/program/installed.sh [PRESET]
set -euo pipefail
cd "$(dirname "$0")/../.."
preset=${1:-release}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --build --preset "$preset" --target tafelquell tafelquell_treiber >/dev/null
cmake --install "build/$preset" --prefix "$work/programm" >/dev/null

for file in bin/tafelquell share/tafelquell/Tafelquell.ini share/tafelquell/Formulierungen.txt share/tafelquell/Beispiel.txt \
  share/applications/de.tafelquell.Tafelquell.desktop share/icons/hicolor/scalable/apps/de.tafelquell.Tafelquell.svg \
  share/man/man1/tafelquell.1; do
  [ -s "$work/programm/$file" ] || { echo "not installed: $file"; exit 1; }
done

. tools/profile.sh
profile_make "$work/profil" "$work/programm/share/tafelquell/Beispiel.txt"
echo "ErstesMal=nein" >>"$XDG_CONFIG_HOME/Tafelquell/Tafelquell.conf"
cat >"$work/skript" <<'SKRIPT'
warte tabAnsicht
lies frmMain windowTitle
gitter tblPPunkte
reiter tabAnsicht 4
gitter tblBFloskel
aktion mnuFileExit
SKRIPT
(cd / && QT_QPA_PLATFORM=offscreen TREIBER_SKRIPT="$work/skript" TREIBER_PROTOKOLL="$work/protokoll" \
  LD_PRELOAD="$OLDPWD/build/$preset/tests/sweep/treiber/libtafelquell_treiber.so" timeout 60 "$work/programm/bin/tafelquell")

expect() { grep -q "$1" "$work/protokoll" || { echo "missing in the run: $1"; cat "$work/protokoll"; exit 1; }; }
expect 'Tafelquell 3.1 - Beispiel.txt'
expect 'Albrecht Jonas'
expect 'Hausaufgaben'
expect '^ENDE'
[ -s "$XDG_DATA_HOME/tafelquell/Tafelquell.ini" ] || { echo "the parameter file was not copied to the user"; exit 1; }
echo "The installed tree works."
