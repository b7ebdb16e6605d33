#!/usr/bin/env bash
# cppcheck on all sources, clang-tidy on those changed since the base: quick checks, without the analyzer. With --all both on all.
#   BASE=commit tools/check_static.sh
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset debug >/dev/null
cmake --build --preset debug --target tafelquell_kern_autogen tafelquell_fenster_autogen >/dev/null

cppcheck --quiet --std=c++20 --language=c++ --enable=warning,performance,portability --inline-suppr \
  --suppressions-list=tools/cppcheck-suppressions.txt --error-exitcode=1 -j "$(nproc)" -I src src

base=${BASE:-$(git rev-parse --verify -q HEAD~10 || git rev-list --max-parents=0 HEAD | tail -n 1)}
if [ "${1:-}" = "--all" ]; then
  checks=
  files=$(git ls-files 'src/*.cpp')
else
  checks=-clang-analyzer-*
  files=$(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp')
fi
[ -z "$files" ] || xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p build/debug --checks="$checks" --warnings-as-errors='*' <<<"$files" 2>/dev/null
echo "Static analysis found nothing."
