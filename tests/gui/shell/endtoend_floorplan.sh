#!/usr/bin/env bash
# endtoend_floorplan.sh PROGRAM SCREENSHOT PICTURES [SCALE]: tables are dragged, inserted, turned,
# deleted and brought back; guests are dragged to a seat, to each other's and out of the room. What
# the saved plan says counts. SCREENSHOT is the program that takes the pictures, which go to the
# directory PICTURES. SCALE is 2 for a fine screen.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/person.sh"

program=$1
screenshot=$2
keep_pictures_in "$3"
scale=${4:-1}
saved="$HOME/floor.kw"
title="Ambrelune - floor.kw"

# Colours that nothing else has tell where things are on the display.
room_colour='#faf5ec'
around_colour='#cec4b8'
table_colour='#ecd6b8'
# Of selected rows in the style that the program has without a desktop.
row_colour='#308cc6'

# A room of 1200 by 1000 units, and in it a table of 200 by 100 at which Bob and Carl sit. Carl is
# locked. The list shows the guests in this order, too.
room_width=1200
anna=0
dora=3
write_plan() {
  cat >"$saved" <<'PLAN'
<!DOCTYPE ambrelune>
<root>
 <version value="2"/>
 <room_x_size value="6"/>
 <room_y_size value="5"/>
 <chair_size value="0.5"/>
 <floorplan_colour_tables value="236,214,184"/>
 <floorplan_colour_inside value="250,245,236"/>
 <floorplan_colour_outside value="206,196,184"/>
 <floorplan_colour_selected value="200,0,0"/>
 <guests>
  <guest display_name="Anna Ash" gender="Female" age="adult" locked="0" group="0"/>
  <guest display_name="Bob Birch" gender="Male" age="adult" locked="0" group="0"/>
  <guest display_name="Carl Cedar" gender="Male" age="adult" locked="1" group="0"/>
  <guest display_name="Dora Dale" gender="Female" age="child" locked="0" group="0"/>
 </guests>
 <groups>
  <group name="all"/>
 </groups>
 <tables>
  <table table="Oak" shape="1" seats_across="2" seats_down="1" assigned="1,-1,-1,2,-1,-1"
         X="400" Y="400"/>
 </tables>
</root>
PLAN
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

# said TABLE NAME: what the saved plan says about a table.
said() {
  sed -n "s/.*<table table=\"$1\".* $2=\"\([^\"]*\)\".*/\1/p" "$saved" | sed 's/%2C/ /g'
}

# says TABLE NAME VALUE: saves, and the plan must say so.
says() {
  save
  [ "$(said "$1" "$2")" = "$3" ] || fail "$2 of $1 is '$(said "$1" "$2")' in the plan, not '$3'"
}

# place TABLE: in the room, in canvas units, "x y".
place() {
  echo "$(said "$1" X) $(said "$1" Y)"
}

# Whether a colour is in another place than it was.
moved() {
  local now
  now=$(extent "$1") && [ "$now" != "$2" ]
}

# is_back COLOUR EXTENT: but for the line round it, which is wider when it is selected.
is_back() {
  local now before i
  now=$(extent "$1") || return 1
  read -ra now <<<"$now"
  read -ra before <<<"$2"
  for i in 0 1 2 3; do
    near "${now[i]}" "${before[i]}" || return 1
  done
}

# see_room: how far the room extends. It fails if there is none of its surroundings on the right and
# below, since then only a part of it can be seen.
see_room() {
  local room around right bottom
  room=$(extent "$room_colour") && around=$(extent "$around_colour") || return 1
  read -r room_x room_y room_w room_h <<<"$room"
  read -r right bottom <<<"$(awk '{ print $1 + $3, $2 + $4 }' <<<"$around")"
  [ "$right" -gt $((room_x + room_w)) ] && [ "$bottom" -gt $((room_y + room_h)) ]
}

# at X Y: the place on the display of canvas units, "x y".
at() {
  echo "$((room_x + $1 * room_w / room_width)) $((room_y + $2 * room_w / room_width))"
}

# seat NUMBER: the place on the display of a seat of Oak, while it lies across.
seat() {
  local right=(-50 50 150 50 -50 -150) down=(-100 -100 0 100 100 0)
  at $(($(said Oak X) + right[$1])) $(($(said Oak Y) + down[$1]))
}

# see_row: where the selected row of the list is.
see_row() {
  local row
  row=$(extent "$row_colour") && read -r row_x row_y _ row_h <<<"$row"
}

# guest NUMBER: the place on the display of a name in the list.
guest() {
  echo "$((row_x + 60 * scale)) $((row_y + $1 * row_h + row_h / 2))"
}

# drag_table NAME FROM TO: without letting go of it.
drag_table() {
  local before
  before=$(extent "$table_colour")
  carry "$2" "$3"
  wait_until 30 moved "$table_colour" "$before" || fail "No table is dragged: $1"
  picture "$1-dragged"
}

# drag_guest NAME FROM TO
drag_guest() {
  carry "$2" "$3"
  wait_until 30 guest_is_dragged_to "$3" || fail "No guest is dragged: $1"
  picture "$1-dragged"
  xdotool mouseup 1
}

# open_menu TABLE: a table's own.
open_menu() {
  local x y
  read -r x y <<<"$(place "$1")"
  read -r x y <<<"$(at "$x" "$y")"
  xdotool mousemove "$x" "$y"
  breathe
  xdotool click 3
  wait_until 30 menu_is_open || fail "$1 has no menu"
}

menu_is_open() {
  local window X Y WIDTH HEIGHT SCREEN
  for window in $(xdotool search --onlyvisible --class ambrelune); do
    eval "$(xdotool getwindowgeometry --shell "$window")"
    # Higher than a tip, and without a title.
    [ "$HEIGHT" -gt $((60 * scale)) ] &&
      [ "$(xdotool getwindowname "$window")" = ambrelune ] && return
  done
  return 1
}

menu_is_closed() {
  ! menu_is_open
}

# choose LETTER: in the open menu.
choose() {
  xdotool key "$1"
  wait_until 30 menu_is_closed || fail "The menu does not close"
}

# undo: which shows all tables, as large as they can be.
undo() {
  local before
  before=$(extent "$table_colour")
  xdotool key ctrl+z
  wait_until 30 moved "$table_colour" "$before" || fail "Nothing is undone"
}

# zoom BUTTON: by the wheel, 4 to come nearer and 5 to go away.
zoom() {
  local before
  before=$(extent "$table_colour")
  xdotool mousemove $((900 * scale)) $((250 * scale)) keydown ctrl click "$1" keyup ctrl
  wait_until 30 moved "$table_colour" "$before" || fail "The wheel does not zoom"
}

# zoom_out: until all of the room can be seen.
zoom_out() {
  until see_room; do
    zoom 5
  done
}

sit_down $((1280 * scale))x$((900 * scale))
write_plan
start env QT_SCALE_FACTOR="$scale" "$program" "$saved"
active "Getting started"
xdotool key alt+s alt+c
active "$title"
wait_until 30 extent "$table_colour" || fail "There is no table"
picture opened

xdotool key alt+i ctrl+a
xdotool type -- anna
wait_until 30 see_row || fail "Nobody is selected"
# Without the pane at the bottom the floor plan is larger.
before=$(extent "$room_colour")
xdotool key ctrl+Down
wait_until 30 moved "$room_colour" "$before" || fail "The bottom pane stays"
zoom_out
picture whole-room

drag_table table "$(at 400 400)" "$(at 700 400)"
xdotool mouseup 1
save
near "$(said Oak X)" 700 && near "$(said Oak Y)" 400 || fail "Oak is at $(place Oak), not 700 400"
landed=$(place Oak)
shown=$(extent "$table_colour")
# A table that was moved is no step to undo.
xdotool key ctrl+z
save
[ "$(place Oak)" = "$landed" ] || fail "Undo takes Oak to $(place Oak)"
picture table-landed
drag_table given-up "$(at 700 400)" "$(at 400 800)"
xdotool key Escape
wait_until 30 is_back "$table_colour" "$shown" || fail "Escape does not put the table back"
xdotool mouseup 1
save
[ "$(place Oak)" = "$landed" ] || fail "Oak is at $(place Oak) though its drag was given up"
picture given-up

drag_guest to-seat "$(guest $anna)" "$(seat 1)"
says Oak assigned "1 0 -1 2 -1 -1"
picture to-seat
drag_guest to-other "$(seat 0)" "$(seat 1)"
says Oak assigned "0 1 -1 2 -1 -1"
picture to-other
drag_guest to-floor "$(seat 1)" "$(at 300 800)"
says Oak assigned "0 1 -1 2 -1 -1"
drag_guest out "$(seat 1)" "$(at 600 1030)"
says Oak assigned "0 -1 -1 2 -1 -1"
picture out

open_menu Oak
picture menu-of-table
choose t
says Oak seats_across 1
says Oak seats_down 2
picture rotated
undo
says Oak seats_across 2
zoom_out

xdotool key alt+i
# The letter may have led into the box above the list of guests, where it is that box's.
wait_until 1 menu_is_open || xdotool key Tab alt+i
wait_until 30 menu_is_open || fail "There is no menu to insert"
picture menu-insert
choose t
active "Insert circular table"
xdotool key ctrl+a
xdotool type -- Elm
picture insert
xdotool key alt+a
gone "Insert circular table"
active "$title"
says Elm shape 0
says Elm assigned "-1 -1 -1 -1 -1 -1 -1 -1"
picture inserted

open_menu Elm
choose d
active Ambrelune
picture question
xdotool key alt+y
gone Ambrelune
active "$title"
says Elm shape ""
picture deleted
undo
says Elm shape 0
picture undone
zoom_out

shown=$(extent "$table_colour")
zoom 4
picture zoomed-in
zoom 5
wait_until 30 is_back "$table_colour" "$shown" || fail "The zoom is not what it was"

# What is refused leaves the plan alone, so that nobody is asked on the way out.
cp "$saved" "$work/before.kw"
drag_guest to-locked "$(guest $dora)" "$(seat 3)"
carry "$(seat 3)" "$(seat 4)"
active Ambrelune
picture locked
xdotool mouseup 1
xdotool key Return
gone Ambrelune
active "$title"
picture refused
xdotool key alt+F4
left
cmp "$saved" "$work/before.kw"
