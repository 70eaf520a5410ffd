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

knows_windows() {
  xprop -root _NET_CLIENT_LIST_STACKING | grep -q "window id"
}

# id TITLE: of a window, as xprop writes it.
id() {
  printf '0x%x' "$(wait_for_window 10 "$1")"
}

# middle TITLE: of a window, in X and Y.
middle() {
  eval "$(xdotool getwindowgeometry --shell "$(wait_for_window 10 "$1")")"
  X=$((X + WIDTH / 2)) Y=$((Y + HEIGHT / 2))
}

# stacked: the last order of the windows, from below, in which there was the splash.
stacked() {
  sed -n "s/.*# //; s/$window/window/; s/$dialog/dialog/; s/0x[0-9a-f]*/splash/p" "$work/stacking" |
    tail -n 1
}

# the_dialog_stands_in_the_middle: of the window, which the window manager may place to a few pixels.
the_dialog_stands_in_the_middle() {
  local x y
  middle "Ambrelune - $(basename "$plan")"
  x=$X y=$Y
  middle "Getting started"
  [ $((X - x)) -ge -40 ] && [ $((X - x)) -le 40 ] && [ $((Y - y)) -ge -40 ] && [ $((Y - y)) -le 40 ]
}

sit_down

wait_until 10 knows_windows || fail "There is no window manager"
start stdbuf -oL xprop -spy -root _NET_CLIENT_LIST_STACKING >"$work/stacking"
start "$program" "$plan"
active "Getting started"
picture getting-started
window=$(id "Ambrelune - $(basename "$plan")")
dialog=$(id "Getting started")
wait_until 10 has_windows 2 || fail "The splash stays"
[ "$(stacked)" = "window, splash, dialog" ] || fail "Wrong order of windows: $(stacked)"
the_dialog_stands_in_the_middle || fail "The first dialog does not stand in the middle"
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
