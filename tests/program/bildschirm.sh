# Sourced by the scripts here: the real program on a virtual screen with a window manager, driven by real keys.

# bildschirm_start BREITExHOEHE SCRIPT ARGUMENTS...: runs the script again inside a virtual screen of its own.
bildschirm_start() {
  local groesse=$1
  shift
  [ -z "${TAFELQUELL_BILDSCHIRM:-}" ] || return 0
  exec env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM TAFELQUELL_BILDSCHIRM=1 \
    xvfb-run -a -s "-screen 0 ${groesse}x24" "$@"
}

fensterverwalter_da() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

bildschirm_verwalter() {
  openbox >/dev/null 2>&1 &
  openbox_pid=$!
  warte_bis "kein Fensterverwalter" fensterverwalter_da
}

# warte_bis TEXT COMMAND...: until the command succeeds; after ten seconds the script fails with the text.
warte_bis() {
  local text=$1 versuch
  shift
  for versuch in $(seq 100); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.1
  done
  echo "FEHLER: $text" >&2
  return 1
}

fenster_aktiv() { [[ "$(xdotool getactivewindow getwindowname)" == $1 ]]; }
warte_auf_fenster() { warte_bis "Fenster \"$1\" kommt nicht" fenster_aktiv "$1"; }
dateien_gleich() { cmp -s "$1" "$2"; }
prozess_fort() { ! kill -0 "$1"; }

programm_start() {
  "$programm" &
  programm_pid=$!
}

programm_beenden() {
  tasten alt+d
  tasten b
  warte_bis "das Programm endet nicht" prozess_fort "$programm_pid"
}

# Keys one by one, as a hurried teacher presses them.
tasten() {
  local taste
  for taste in "$@"; do
    xdotool key --clearmodifiers "$taste"
    sleep 0.08
  done
}

# wiederholt ANZAHL TASTE
wiederholt() {
  local mal
  for mal in $(seq "$1"); do tasten "$2"; done
}

tippe() {
  xdotool type --clearmodifiers --delay 20 "$1"
  sleep 0.1
}

bild() {
  sleep 0.4
  import -window root "$ausgabe/$1.png"
  echo "Bild: $ausgabe/$1.png"
}

aufraeumen() {
  [ -z "${programm_pid:-}" ] || kill "$programm_pid" 2>/dev/null || true
  [ -z "${openbox_pid:-}" ] || kill "$openbox_pid" 2>/dev/null || true
}
