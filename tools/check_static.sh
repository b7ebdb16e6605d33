#!/usr/bin/env bash
# cppcheck on all sources, clang-tidy on those changed since the base (or on all with --all).
#   BASE=commit tools/check_static.sh
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset debug >/dev/null
cmake --build --preset debug --target tafelquell_kern_autogen tafelquell_fenster_autogen >/dev/null

cppcheck --quiet --std=c++20 --language=c++ --enable=warning,performance,portability --inline-suppr \
  --suppressions-list=tools/cppcheck-suppressions.txt --error-exitcode=1 -j "$(nproc)" -I src src

base=${BASE:-$(git rev-parse --verify -q HEAD~20 || git rev-list --max-parents=0 HEAD | tail -n 1)}
if [ "${1:-}" = "--all" ]; then
  files=$(git ls-files 'src/*.cpp')
else
  files=$(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp')
fi
[ -z "$files" ] || xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p build/debug --warnings-as-errors='*' <<<"$files" 2>/dev/null
echo "Static analysis found nothing."
