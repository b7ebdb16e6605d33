#!/usr/bin/env bash
# Pictures of every tab, at the sizes and palettes that a teacher may have, for a look by eye.
#   tests/program/ansichten.sh PROGRAM FOLDER
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/bildschirm.sh"
. "$hier/../../tools/profile.sh"
bildschirm_start 1920x1080 "$0" "$@"

programm=$1
mkdir -p "$2"
ausgabe=$(cd "$2" && pwd)
trap aufraeumen EXIT
export HOME="$ausgabe/heim"
mkdir -p "$HOME"
bildschirm_verwalter

# A dark palette as a KDE desktop sets it; Qt reads it without any further package.
dunkel_einrichten() {
  cat >"$XDG_CONFIG_HOME/kdeglobals" <<'PALETTE'
[Colors:Window]
BackgroundNormal=35,38,41
ForegroundNormal=239,240,241
[Colors:View]
BackgroundNormal=27,30,32
ForegroundNormal=239,240,241
BackgroundAlternate=35,38,41
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=239,240,241
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
PALETTE
}

# reihe NAME BREITE HOEHE FAKTOR [dunkel]: one picture a tab
reihe() {
  local name=$1 breite=$2 hoehe=$3 faktor=$4 palette=${5:-} nummer
  rm -rf "$ausgabe/profil"
  profile_make "$ausgabe/profil" "$hier/../../data/Beispiel.txt"
  printf '[Settings]\nAutoDatei=%s\nErstesMal=nein\nMainLeft=0\nMainTop=0\nMainWidth=%d\nMainHeight=%d\n' \
    "$ausgabe/profil/Beispiel.txt" $((breite * 15)) $((hoehe * 15)) >"$XDG_CONFIG_HOME/Tafelquell/Tafelquell.conf"
  local umgebung=(QT_SCALE_FACTOR="$faktor")
  if [ "$palette" = dunkel ]; then
    dunkel_einrichten
    umgebung+=(XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 QT_STYLE_OVERRIDE=fusion)
  fi
  env "${umgebung[@]}" "$programm" &
  programm_pid=$!
  warte_auf_fenster "Tafelquell 3.1 - Beispiel.txt"
  tasten ctrl+shift+Tab
  for nummer in 0 1 2 3 4; do
    bild "$name-$nummer"
    tasten ctrl+Tab
  done
  kill "$programm_pid"
  warte_bis "das Programm endet nicht" prozess_fort "$programm_pid"
}

reihe klein 1024 680 1
reihe hd 1916 1030 1
reihe doppelt 956 510 2
reihe dunkel 1200 760 1 dunkel
rm -rf "$ausgabe/profil" "$HOME"
