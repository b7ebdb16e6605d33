#!/usr/bin/env bash
# Faults, kills and full discs on the finished program: prints points tried and lost; fails if any is lost.
#   tests/sweep/sweep.sh            every call, every error, 1,000 random kills (half an hour and more)
#   tests/sweep/sweep.sh --kurz     a part of them (about two minutes), the form of the CI
# The build is that of the preset in TAFELQUELL_PRESET (release).
set -euo pipefail
cd "$(dirname "$0")/../.."
exec nice python3 tests/sweep/sweep.py --bau "build/${TAFELQUELL_PRESET:-release}" "$@"
