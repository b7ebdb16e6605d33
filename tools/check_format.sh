#!/usr/bin/env bash
# Every source file in the project's style; --fix applies it.
set -euo pipefail
cd "$(dirname "$0")/.."
mode=(--dry-run -Werror)
[ "${1:-}" = "--fix" ] && mode=(-i)
git ls-files -z '*.h' '*.cpp' | xargs -0 -r clang-format "${mode[@]}"
echo "Formatting is right."
