#!/usr/bin/env bash
# Drag and drop in the assessment view by a real pointer, on a virtual screen with a window manager.
#   tests/program/ziehen.sh TEST_PROGRAM_OF_ASSESSMENTS
set -euo pipefail
hier=$(cd "$(dirname "$0")" && pwd)
. "$hier/bildschirm.sh"
bildschirm_start 1280x1024 "$0" "$@"
trap aufraeumen EXIT
bildschirm_verwalter
QT_QPA_PLATFORM=xcb LC_ALL=de_DE.UTF-8 timeout 150 "$1" ZeigerTest
