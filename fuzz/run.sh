#!/usr/bin/env bash
# Runs each fuzz target on its corpus. What it finds new is kept below build/fuzz, not in the corpus of the source.
#   fuzz/run.sh 5                    five seconds a target
#   fuzz/run.sh 10000000x            so many executions a target
#   fuzz/run.sh 60 datenbank         only this target
set -euo pipefail
cd "$(dirname "$0")/.."
amount=${1:-5}
shift || true
case "$amount" in
  *x) limit="-runs=${amount%x}" ;;
  *) limit="-max_total_time=$amount" ;;
esac
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzzziele >/dev/null

# Stacks of allocations cost most of the time and tell little about a loader.
export ASAN_OPTIONS=${ASAN_OPTIONS:-malloc_context_size=2:quarantine_size_mb=16}

targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(cd fuzz/corpus && ls -d -- */ | tr -d /)
failed=0
for target in "${targets[@]}"; do
  found=build/fuzz/gefunden/$target
  mkdir -p "$found"
  options=("$limit" -max_len=4096 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$found/fehler-")
  [ -f "fuzz/woerter/$target.dict" ] && options+=(-dict="fuzz/woerter/$target.dict")
  mkdir -p "$found/korpus"
  if "build/fuzz/fuzz/fuzz_$target" "${options[@]}" "$found/korpus" "fuzz/corpus/$target" >"$found/log.txt" 2>&1; then
    printf '%-16s %12s executions, nothing found\n' "$target" "$(sed -n 's/.*number_of_executed_units: *//p' "$found/log.txt")"
  else
    printf '%-16s FAILED, see %s\n' "$target" "$found/log.txt"
    tail -n 30 "$found/log.txt"
    failed=1
  fi
done
exit "$failed"
