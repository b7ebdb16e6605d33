#!/usr/bin/env bash
# Builds and runs all benchmarks and prints one table. Each figure is a ratio to a reference of its own, measured in turn with it.
#   bench/run.sh            all
#   bench/run.sh laden      only the programs whose name holds the word
set -euo pipefail
cd "$(dirname "$0")/.."
filter=${1:-}
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} LC_ALL=${LC_ALL:-de_DE.UTF-8}

cmake --preset bench >/dev/null
cmake --build --preset bench >/dev/null
lines=$(mktemp)
trap 'rm -f "$lines"' EXIT
for program in build/bench/bench/messung_*"$filter"*; do
  [ -x "$program" ] && [ -f "$program" ] || continue
  echo "# ${program##*/}" >&2
  "$program" | tee >(grep '^#' >&2 || true) | { grep -v '^#' || true; } >>"$lines"
done

LC_ALL=C awk -F'\t' '
  BEGIN { printf "%-62s %8s %6s %6s\n", "figure (reference = 1)", "ratio", "aim", "limit" }
  { verdict = $2 <= $3 ? "reached" : $2 <= $4 ? "within limit" : "FAILS"; if ($2 > $4) failed = 1
    printf "%-62s %8.3f %6.2f %6.2f  %s\n", $1, $2, $3, $4, verdict }
  END { exit failed }' "$lines"
