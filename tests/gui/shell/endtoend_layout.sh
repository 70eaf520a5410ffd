#!/usr/bin/env bash
# endtoend_layout.sh PROGRAM SCREENSHOT PLAN PICTURES: an evening on which everybody gets a seat, on a
# display of its own: the layout of a copy of PLAN is stopped, undone, and run to its end; then the
# wishes not met are looked at, and the plan gets other colours, which are there the next day. What
# the saved plan says counts. SCREENSHOT is the program that takes the pictures, which go to the
# directory PICTURES.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/person.sh"

program=$1
screenshot=$2
plan=$3
keep_pictures_in "$4"
saved="$HOME/june.kw"
title="Ambrelune - june.kw"

# Where the mouse finds things in the window, which covers the display.
expand_button=(1262 128)
conflicts_button=(567 128)
# Once the panel is unfolded.
colours_button=(1262 157)
floor_plan=(316 210 946 340)
# Of the tables of the example.
table_colour='#e2d8ee'
# Of the lines between guests who would like to sit near each other.
line_colour='#ff00ff'

# A theme that ships, two of its colours, and the name under which it is kept once more.
theme="Sea breeze"
theme_room=247,252,254
theme_room_colour='#f7fcfe'
theme_table_colour='#bfe3ee'
own_theme="Evening by the sea"
own_themes="$HOME/.local/share/Veltrace/Ambrelune/themes.txt"

# prefer TEXT: the user's settings for the layout, in place of those from before.
prefer() {
  mkdir -p "$HOME/.config/Veltrace"
  cat >"$HOME/.config/Veltrace/Ambrelune.conf" <<SETTINGS
[help]
show_getting_started=false
$1
SETTINGS
}

# save: the plan under its name.
save() {
  rm -f "$saved"
  xdotool key ctrl+s
  wait_until 30 saved_whole || fail "The plan was not saved"
}

saved_whole() {
  grep -q '</root>' "$saved"
}

# seating PLAN: who sits where, a line for each table.
seating() {
  sed -n 's/.* assigned="\([^"]*\)".*/\1/p' "$1"
}

# seated_in PLAN: how many guests have a seat.
seated_in() {
  seating "$1" | sed 's/%2C/\n/g' | grep -cv '^-1$'
}

# is_laid_out: saves, and everybody must have a seat.
is_laid_out() {
  rm -f "$saved"
  xdotool key ctrl+s
  wait_until 2 saved_whole && [ "$(seated_in "$saved")" -eq "$guests" ]
}

# part NAME X Y WIDTH HEIGHT: a picture of a part of the display.
part() {
  "$screenshot" "$work/$1.png" "${@:2}"
}

# see_score NAME: what the window of the layout says of the score it has.
see_score() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$(cat "$work/window")")"
  # With both scores, but without the bar, which moves, too.
  part "$1" $((X + WIDTH - 80)) "$Y" 80 45
}

score_is_another() {
  see_score score-now
  ! cmp "$work/score.png" "$work/score-now.png"
}

see_lines() {
  "$screenshot" "$work/look.png" "$line_colour"
}

see_no_lines() {
  ! see_lines
}

see_room_of_theme() {
  "$screenshot" "$work/look.png" "$theme_room_colour"
}

# tables COLOUR: where on the display they are.
tables() {
  "$screenshot" "$work/look.png" "$1"
}

tables_moved() {
  [ "$(tables "$1")" != "$2" ]
}

# floor_plan_is NAME: as in the picture of that part that was taken under this name.
floor_plan_is() {
  part floor-plan-now "${floor_plan[@]}"
  cmp "$work/floor-plan-now.png" "$work/$1.png"
}

# has_seats_of PLAN: saves, and all must sit as they do there.
has_seats_of() {
  save
  diff <(seating "$1") <(seating "$saved")
}

start_program() {
  start "$program" "$saved"
  active "$title"
}

guests=$(grep -c '<guest ' "$plan")
[ "$(seated_in "$plan")" -lt "$guests" ] || fail "Everybody in the example is seated"
cp "$plan" "$saved"
sit_down

# So long that only Esc can end it.
prefer "[solver]
stopCriteria=1
maxSeconds=600"
start_program
picture opened
xdotool key ctrl+l
active "Auto layout"
see_score score
wait_until 60 score_is_another || fail "The score does not climb"
picture running
xdotool key Escape
gone "Auto layout"
active "$title"
wait_until 60 is_laid_out || fail "$(seated_in "$saved") of $guests guests are seated after Esc"
picture stopped

xdotool key ctrl+z
has_seats_of "$plan" || fail "Undo does not bring the seats back"
picture undone
xdotool key ctrl+y
wait_until 60 is_laid_out || fail "Redo does not bring the layout back"
xdotool key ctrl+z
has_seats_of "$plan" || fail "The second undo does not bring the seats back"
xdotool key alt+F4
left

# To the end, as the program does it by itself.
prefer ""
start_program
xdotool key ctrl+l
wait_until 60 is_laid_out || fail "$(seated_in "$saved") of $guests guests are seated at the end"
picture laid-out
# Only from now on are there seats to lose.
cp "$saved" "$work/laid-out.kw"
xdotool key ctrl+l
active Ambrelune
picture question
xdotool key alt+n
gone Ambrelune
active "$title"
has_seats_of "$work/laid-out.kw" || fail "Seats changed though the answer was no"

see_no_lines || fail "There are lines in the floor plan"
part before-lines "${floor_plan[@]}"
xdotool mousemove "${conflicts_button[@]}" mousedown 1
wait_until 30 see_lines || fail "There are no lines while the button is held"
picture conflicts
xdotool mouseup 1
wait_until 30 see_no_lines || fail "The lines stay"
wait_until 30 floor_plan_is before-lines || fail "The lines leave something behind"

shown=$(tables "$table_colour")
xdotool mousemove "${expand_button[@]}" click 1
wait_until 30 tables_moved "$table_colour" "$shown" || fail "The panel does not unfold"
picture unfolded
xdotool mousemove "${colours_button[@]}" click 1
active "Fonts and colours"
picture colours
# Back from OK to the list, and on to the first button beside it.
xdotool key shift+Tab shift+Tab
xdotool type -- "${theme%% *}"
picture theme-picked
xdotool key Tab space
wait_until 30 see_room_of_theme || fail "The preview does not show the theme"
picture theme-loaded
xdotool key Tab space
active "Theme name"
xdotool key ctrl+a
xdotool type -- "$own_theme"
picture theme-name
xdotool key Return
gone "Theme name"
active "Fonts and colours"
picture theme-saved
grep -q "^$own_theme^.*^$theme_room^" "$own_themes" || fail "The theme was not saved"
xdotool key alt+o
gone "Fonts and colours"
active "$title"
save
grep -q "<floorplan_colour_inside value=\"${theme_room//,/%2C}\"" "$saved" ||
  fail "The plan does not have the colours of the theme"
# Folded again, as it is when the program starts.
shown=$(tables "$theme_table_colour")
xdotool mousemove "${expand_button[@]}" click 1
wait_until 30 tables_moved "$theme_table_colour" "$shown" || fail "The panel does not fold"
xdotool mousemove 10 890
part last-evening "${floor_plan[@]}"
picture last-evening
cp "$saved" "$work/last-evening.kw"
xdotool key alt+F4
left

start_program
wait_until 30 floor_plan_is last-evening || fail "The floor plan does not look as it did"
picture next-day
xdotool key alt+F4
left
cmp "$saved" "$work/last-evening.kw" || fail "To open and close the plan has changed it"
