#!/usr/bin/env bash
# endtoend.sh PROGRAM SCREENSHOT PLAN PICTURES: a first evening with the program, by keyboard, on a
# display of its own: look round, change the event, save the plan under a name, quit, come back and
# find it. SCREENSHOT is the program that takes the pictures, which go to the directory PICTURES.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/person.sh"

program=$1
screenshot=$2
plan=$3
keep_pictures_in "$4"
saved="$HOME/june.kw"

window_count() {
  xdotool search --onlyvisible --class ambrelune 2>/dev/null | wc -l
}

has_windows() {
  [ "$(window_count)" -eq "$1" ]
}

# menu LETTER: opens a menu, takes its picture and closes it. A letter may lead into a pane first,
# where it is that pane's.
menu() {
  xdotool key "alt+$1"
  wait_until 1 has_windows 2 || xdotool key Tab "alt+$1"
  wait_until 10 has_windows 2 || fail "The menu $1 does not open"
  picture "menu-$1"
  xdotool key Escape
  wait_until 10 has_windows 1 || fail "The menu $1 does not close"
}

# change_event TEXT: through the information dialog.
change_event() {
  xdotool key ctrl+i
  active Information
  xdotool key ctrl+a
  xdotool type -- "$1"
  picture information
  xdotool key alt+o
  gone Information
}

sit_down

start "$program" "$plan"
active "Getting started"
picture getting-started
xdotool key alt+s alt+c
active "Ambrelune - $(basename "$plan")"
wait_until 10 has_windows 1 || fail "The splash stays"
picture window
for letter in f e v i h; do
  menu "$letter"
done

change_event "Midsummer dinner"
xdotool key alt+f a
active "Save As"
xdotool key ctrl+a
xdotool type -- "$saved"
picture save-as
xdotool key Return
active "Ambrelune - june.kw"
grep -q 'event value="Midsummer%20dinner"' "$saved" || fail "The event was not saved"

change_event "Midsummer night"
xdotool key alt+F4
active Ambrelune
picture question
xdotool key alt+s
left
grep -q 'event value="Midsummer%20night"' "$saved" || fail "The change was not saved"
grep -q 'event value="Midsummer%20dinner"' "$HOME"/june_*.kwb || fail "There is no backup"

start "$program"
active "Ambrelune - <unsaved>"
xdotool key ctrl+shift+o
active "Most recently accessed"
picture recent-plans
xdotool key Return
active "Ambrelune - june.kw"
xdotool key alt+F4
left
