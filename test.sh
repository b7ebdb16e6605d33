#!/usr/bin/env bash
# Builds Tafelquell and runs all tests; the last line is the summary. Installs by apt what it needs, once.
#   ./test.sh          all tests
#   ./test.sh asan     the same with address and undefined-behaviour sanitizers
#   ./test.sh debug    the build of daily work
set -euo pipefail
cd "$(dirname "$0")"
. tools/dependencies.sh
preset=${1:-release}

dependencies_install build test
cmake --preset "$preset" >"${TMPDIR:-/tmp}/tafelquell-configure.log" 2>&1 ||
  { cat "${TMPDIR:-/tmp}/tafelquell-configure.log"; exit 1; }
cmake --build --preset "$preset"
ctest --preset "$preset" -j "$(nproc)"
