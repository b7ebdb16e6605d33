#!/usr/bin/env bash
# Walks through the main job with the real program, by keys alone: open the example, change a boundary, type points, save,
# end, start again. Then the saved file must differ from the example in exactly what was typed. Leaves screenshots and the
# saved file in FOLDER.
#   tests/program/rundgang.sh PROGRAM FOLDER
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/bildschirm.sh"
. "$hier/../../tools/profile.sh"
bildschirm_start 1100x800 "$0" "$@"

programm=$1
mkdir -p "$2"
ausgabe=$(cd "$2" && pwd)
trap aufraeumen EXIT
rm -rf "$ausgabe/profil"
profile_make "$ausgabe/profil" "$hier/../../data/Beispiel.txt"
buch=$ausgabe/profil/Beispiel.txt
# A first start, without any setting.
rm "$XDG_CONFIG_HOME/Tafelquell/Tafelquell.conf"
bildschirm_verwalter

programm_start
warte_auf_fenster "Hinweise zum Haftungsausschluss!"
bild 1-erster-start
tasten Return
warte_auf_fenster "Tafelquell 3.1 - Unbenannt"
xdotool getactivewindow windowmove 20 20 windowsize 1030 700

echo "Beispiel öffnen"
tasten alt+d f
warte_auf_fenster "Öffnen"
bild 1-oeffnen
tippe "$buch"
tasten Return
warte_auf_fenster "Tafelquell 3.1 - Beispiel.txt"
bild 2-geoeffnet

echo "Notengrenze ändern: 1 ab 20,5 Punkten"
# From the tabs: class, test, date, theme, file, total of points, boundary 1.
wiederholt 7 Tab
tippe "20,5"
tasten Return
bild 3-notengrenze

echo "Punkte eintragen: die ersten beiden Schüler"
# Further on: boundaries 2 to 5, the grid.
wiederholt 5 Tab
tasten Right ctrl+a
tippe "21"
tasten Return ctrl+a
tippe "9,5"
tasten Return
bild 4-punkte

echo "Speichern, beenden, neu starten"
vorher=$(stat -c %Y "$buch")
tasten ctrl+s
warte_bis "nichts gespeichert" test "$buch" -nt "$hier/../../data/Beispiel.txt" -a "$vorher" != "$(stat -c %Y "$buch")"
programm_beenden
programm_start
warte_auf_fenster "Tafelquell 3.1 - Beispiel.txt"
bild 5-neu-geladen
programm_beenden

cp "$buch" "$ausgabe/gespeichert.txt"
diff <(iconv -f cp1252 -t utf-8 "$hier/../../data/Beispiel.txt") <(iconv -f cp1252 -t utf-8 "$buch") |
  grep '^[<>]' | tr -d '\r' >"$ausgabe/unterschied.txt" || true
diff -u "$hier/rundgang.soll" "$ausgabe/unterschied.txt" || { echo "FEHLER: gespeichert ist etwas anderes" >&2; exit 1; }
echo "Rundgang vollständig. Bilder und gespeicherte Datei: $ausgabe"
