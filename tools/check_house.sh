#!/usr/bin/env bash
# Rules of the house that a compiler does not see: folders include only what stands below them, message boxes and file
# dialogs only in frame/, the clock in one place, no text that a label could take for markup, control names in forms.
set -euo pipefail
cd "$(dirname "$0")/.."
floors="core controls photos records grading views assessments exchange reports frame"
failed=0
complain() { echo "$1"; failed=1; }
rank() { local n=0 f; for f in $floors; do n=$((n + 1)); [ "$f" = "$1" ] && { echo "$n"; return; }; done; echo 0; }

for folder in $floors; do
  here=$(rank "$folder")
  while IFS=: read -r file line text; do
    [ -n "$file" ] || continue
    there=$(rank "$(sed -n 's/.*#include "\([a-z]*\)\/.*/\1/p' <<<"$text")")
    [ "$there" -le "$here" ] || complain "$file:$line includes from a higher folder: $text"
  done < <(grep -rnE '^#include "[a-z]+/' "src/$folder" || true)
done

found() { # message, pattern, paths...
  local message=$1 pattern=$2; shift 2
  local hits; hits=$(git grep -nIE "$pattern" -- "$@" || true)
  [ -z "$hits" ] || complain "$message
$hits"
}
found "A box or file dialog outside frame/:" '\b(QMessageBox|QFileDialog|QErrorMessage|QInputDialog)\b' src ':!src/frame'
found "The clock is asked outside Uhr.cpp:" 'currentDate(Time)?(Utc)?\(|QTime::currentTime' src ':!src/core/Uhr.cpp'
found "The locale is asked outside Sprachregeln.cpp:" 'QLocale::system\(|QLocale\(\)' src ':!src/core/Sprachregeln.cpp'
found "A wait for time in a test:" '\b(qWait|qSleep|sleep_for)\(' tests ':!tests/program' ':!tests/sweep'
found "Unfinished work:" '\b(TODO|FIXME|XXX|HACK)\b' src tests tools bench fuzz ':!tools/check_house.sh'
found "A file is opened outside the module that never loses one:" '\b(QSaveFile|QTextStream)\b' src

[ "$failed" = 0 ] && echo "The house stands on its floors."
exit "$failed"
