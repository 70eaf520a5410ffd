#!/usr/bin/env bash
# x11drag.sh PROGRAM SCREENSHOT: guests are dragged from one program to another. Those of the same
# plan get a seat there; a window that is under a dialog, and another plan, take nobody. SCREENSHOT
# is the program that takes pictures.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/person.sh"

program=$1
screenshot=$2
scale=1
plan="$HOME/party.kw"
other="$HOME/other.kw"

# Of selected rows in the style that the program has without a desktop.
row_colour='#308cc6'
target_colour='#ecd6b8'

# write_plan FILE RED GREEN BLUE: two guests and a table of that colour.
write_plan() {
  cat >"$1" <<PLAN
<!DOCTYPE ambrelune>
<root>
 <version value="2"/>
 <room_x_size value="5"/>
 <room_y_size value="5"/>
 <chair_size value="0.5"/>
 <floorplan_colour_tables value="$2,$3,$4"/>
 <guests>
  <guest display_name="Anna Ash" gender="Female" age="adult" locked="0" group="0"/>
  <guest display_name="Bob Birch" gender="Male" age="adult" locked="0" group="0"/>
 </guests>
 <groups>
  <group name="all"/>
 </groups>
 <tables>
  <table table="" shape="1" seats_across="2" seats_down="1" assigned="-1,-1,-1,-1,-1,-1"
         X="500" Y="500"/>
 </tables>
</root>
PLAN
}

# open_window FILE X: a program of its own with the plan, at this place of the display.
open_window() {
  start "$program" "$1"
  window_pid=$started_pid
  wait_until 30 window_of "$window_pid" "Ambrelune - $(basename "$1")" || fail "No window for $1"
  window=$(cat "$work/window-of")
  xdotool windowsize "$window" 600 700 windowmove "$window" "$2" 20
}

window_of() {
  xdotool search --onlyvisible --all --pid "$1" --name "^$2\$" >"$work/window-of" &&
    [ -s "$work/window-of" ]
}

# to_front WINDOW: until it has the keys.
to_front() {
  xdotool windowactivate "$1"
  wait_until 10 is_in_front "$1" || fail "A window does not come to the front"
}

is_in_front() {
  [ "$(xdotool getactivewindow)" = "$1" ]
}

# middle_of COLOUR: where its middle is on the display.
middle_of() {
  local x y width height
  read -r x y width height <<<"$(extent "$1")"
  echo "$((x + width / 2)) $((y + height / 2))"
}

# drop_on_table: Anna, from the list of the first window.
drop_on_table() {
  local row target
  row=$(middle_of "$row_colour")
  target=$(middle_of "$target_colour")
  carry "$row" "$target"
  wait_until 30 guest_is_dragged_to "$target" || fail "No guest is dragged"
  xdotool mouseup 1
  wait_until 30 nothing_is_dragged_to "$target" || fail "The drag does not end"
}

nothing_is_dragged_to() {
  ! guest_is_dragged_to "$1"
}

# seats_of FILE: who sits at the table, in the plan that the window in front saves.
seats_of() {
  rm -f "$1"
  xdotool key ctrl+s
  wait_until 30 grep -q '</root>' "$1" || fail "The plan was not saved"
  sed -n 's/.*<table .* assigned="\([^"]*\)".*/\1/p' "$1" | sed 's/%2C/ /g'
}

sit_down 1280x800
mkdir -p "$HOME/.config/Veltrace"
printf '%s\n' '[appearance]' maximised=false '[help]' show_getting_started=false \
  >"$HOME/.config/Veltrace/Ambrelune.conf"

write_plan "$plan" 1 2 3
open_window "$plan" 0
from=$window
to_front "$from"
xdotool key alt+i ctrl+a
xdotool type -- anna
wait_until 30 extent "$row_colour" || fail "Nobody is selected"

write_plan "$plan" 236 214 184
open_window "$plan" 640
to=$window
to_pid=$window_pid
wait_until 30 extent "$target_colour" || fail "There is no table"

to_front "$to"
xdotool key ctrl+i
wait_for_window 30 Information >"$work/window" || fail "There is no dialog"
xdotool windowmove "$(cat "$work/window")" 700 620
to_front "$from"
drop_on_table
to_front "$(cat "$work/window")"
xdotool key Escape
gone Information
to_front "$to"
[ "$(seats_of "$plan")" = "-1 -1 -1 -1 -1 -1" ] || fail "Under a dialog a guest gets a seat"

to_front "$from"
drop_on_table
to_front "$to"
[ "$(seats_of "$plan")" = "0 -1 -1 -1 -1 -1" ] || fail "Anna gets no seat in the other window"
xdotool key alt+F4
wait_until 30 process_is_gone "$to_pid" || fail "The program does not end"

write_plan "$other" 236 214 184
open_window "$other" 640
wait_until 30 extent "$target_colour" || fail "There is no table in the other plan"
to_front "$from"
drop_on_table
to_front "$window"
[ "$(seats_of "$other")" = "-1 -1 -1 -1 -1 -1" ] || fail "A guest of another plan gets a seat"
