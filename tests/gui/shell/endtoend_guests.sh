#!/usr/bin/env bash
# endtoend_guests.sh PROGRAM SCREENSHOT PICTURES: three guests are inserted by keyboard alone, one
# is renamed in their row, found, locked by a click on their cell, deleted, and brought back. What
# the saved plan says counts. SCREENSHOT is the program that takes the pictures, which go to the
# directory PICTURES.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/person.sh"

program=$1
screenshot=$2
keep_pictures_in "$3"
saved="$HOME/guests.kw"

# insert TITLE FIRST LAST: a guest, as somebody types who does not care for capitals.
insert() {
  xdotool key ctrl+g
  active "Insert guest"
  xdotool type -- "$1"
  xdotool key Tab
  xdotool type -- "$2"
  xdotool key Tab
  xdotool type -- "$3"
  picture "insert-$2"
  xdotool key Return
  gone "Insert guest"
}

# find TEXT: in the box above the list.
find_guest() {
  xdotool key alt+i ctrl+a
  xdotool type -- "$1"
}

# selected_row: the place of the selected row on the display: "x y width height".
selected_row() {
  "$screenshot" "$work/row.png" "$highlight" >"$work/row"
}

# save: the plan under its name.
save() {
  rm -f "$saved"
  xdotool key ctrl+s
  wait_until 10 saved_whole || fail "The plan was not saved"
}

saved_whole() {
  grep -q '</root>' "$saved"
}

# says PATTERN NUMBER: how many guests of the saved plan are like that.
says() {
  local found
  found=$(grep -c "<guest .*$1" "$saved" || true)
  [ "$found" = "$2" ] || fail "$found guests are '$1' in the plan, not $2"
}

# The colour of selected rows in the style that the program has without a desktop.
highlight='#308cc6'

sit_down
start "$program"
active "Getting started"
xdotool key alt+s alt+c
active "Ambrelune - <unsaved>"

# The list takes the whole window.
xdotool key ctrl+Up ctrl+Down
insert mrs anna "smith-o'neil"
insert mr bob marley
insert dr zoe adams
xdotool key ctrl+s
active "Save As"
xdotool key ctrl+a
xdotool type -- "$saved"
xdotool key Return
active "Ambrelune - guests.kw"
wait_until 10 saved_whole || fail "The plan was not saved"
says "" 3
says "display_name=\"Mrs%20Anna%20Smith-O%27Neil\" title=\"Mrs\" .*gender=\"Female\"" 1
says 'display_name="Dr%20Zoe%20Adams" .*gender="Undefined"' 1

find_guest "mr bob"
wait_until 10 selected_row || fail "Nobody is selected"
picture found
# The keys of the commands work from the box, too, though line edits have uses of their own for them.
xdotool key ctrl+e
active "Guest properties"
picture properties
xdotool key Escape
gone "Guest properties"
# F2 opens the cell that was found.
xdotool key Return F2 ctrl+a
xdotool type -- "Best man"
picture rename
xdotool key Return
save
says 'display_name="Best%20man" title="Mr" first_name="Bob"' 1

find_guest best
wait_until 10 selected_row || fail "Nobody is selected"
read -r x y _ height <"$work/row"
# Into the column of locks, which begins 440 pixels from the left.
xdotool mousemove $((x + 470)) $((y + height / 2)) click 1
picture locked
save
says 'display_name="Best%20man" .* locked="1"' 1
says 'locked="0"' 2

xdotool key Delete
active Ambrelune
picture question
xdotool key alt+y
gone Ambrelune
picture deleted
save
says "" 2

xdotool key ctrl+z
picture undone
save
says "" 3
xdotool key alt+F4
left
