# Sourced: a user profile of its own in one folder, for trials and program tests.

# profile_make FOLDER BOOK: all settings, data and rescue copies below FOLDER; BOOK is copied there and is the book that
# opens at start. What is there already stays.
profile_make() {
  local folder=$1 book=$2
  mkdir -p "$folder"
  export XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/data" XDG_STATE_HOME="$folder/state"
  mkdir -p "$XDG_CONFIG_HOME/Tafelquell" "$XDG_DATA_HOME" "$XDG_STATE_HOME"
  local copy="$folder/$(basename "$book")" settings="$XDG_CONFIG_HOME/Tafelquell/Tafelquell.conf"
  [ -e "$copy" ] || cp "$book" "$copy"
  [ -e "$settings" ] || printf '[Settings]\nAutoDatei=%s\nMainLeft=300\nMainTop=300\nMainWidth=18000\nMainHeight=11250\n' \
    "$copy" >"$settings"
}
