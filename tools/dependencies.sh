# Sourced by run.sh, test.sh and .ci/run: installs by apt what is missing, once, as root or through sudo.
# Usage: dependencies_install build|test|check ...

DEPENDENCIES_build="g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools libgl1-mesa-dev qt6-translations-l10n
  qt6-qpa-plugins fonts-dejavu-core fonts-liberation"
DEPENDENCIES_test="xvfb xauth openbox xdotool x11-utils imagemagick dbus strace procps python3"
DEPENDENCIES_check="clang clang-tidy clang-format cppcheck libclang-rt-14-dev libbenchmark-dev"

dependencies_missing() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done
}

dependencies_install() {
  local kind list="" missing root=()
  for kind in "$@"; do
    local name="DEPENDENCIES_$kind"
    list="$list ${!name}"
  done
  missing=$(dependencies_missing $list | tr '\n' ' ')
  [ -n "${missing// /}" ] || return 0
  echo "Es fehlen Pakete, sie werden mit apt eingerichtet: $missing"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Dafür wird root oder sudo gebraucht." >&2; return 1; }
    root=(sudo)
  fi
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}
