#!/usr/bin/env bash
# Takes the pictures of the help and of the README from the running program, help/tutorial_*.png and
# docs/*.png, after
#   cmake --build --preset dev --target ambrelune ambrelune-cli screenshot
# It needs what the tests need, and ImageMagick. The seating is the same each time.
set -euo pipefail
root=$(dirname "$(dirname "$(realpath "$0")")")
bin="$root/build/dev/bin"
screenshot="$bin/screenshot"
. "$root/tests/support/person.sh"

example="$root/examples/wedding.kw"
june="$HOME/june.kw"

# Where the mouse finds things in the window of the pictures for the help, which covers the display.
display=640x540
pane=(49 86 591 427)
conflicts_button=(302 128)
expand_button=(621 128)
colours_button=(621 159)

pause() {
  read -r -t "$1" <>"$work/never" || true
}

# prefer TEXT: the user's settings.
prefer() {
  mkdir -p "$HOME/.config/Veltrace"
  printf '[help]\nshow_getting_started=false\n%s\n' "$1" >"$HOME/.config/Veltrace/Ambrelune.conf"
}

# open_plan FILE [SCALE]
open_plan() {
  start env QT_SCALE_FACTOR="${2:-1}" "$bin/ambrelune" "$1"
  program=$started_pid
  active "Ambrelune - $(basename "$1")"
  pause 1
}

close_program() {
  kill "$program"
  wait "$program" || true
}

# keep FILE: a picture of few colours is far smaller, and nobody sees it.
keep() {
  convert "$work/picture.png" +dither -colors 255 "PNG8:$root/$1"
}

# shoot FILE X Y WIDTH HEIGHT: a part of the display.
shoot() {
  pause 1
  "$screenshot" "$work/picture.png" "${@:2}"
  keep "$1"
}

# shoot_window FILE: the active one, with its frame, which the window manager counts twice.
shoot_window() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$(xdotool getactivewindow)")"
  shoot "$1" $((X - 2)) $((Y - 40)) $((WIDTH + 2)) $((HEIGHT + 25))
}

# draw FILE PLAN: its floor plan.
draw() {
  "$bin/ambrelune-cli" floorplan "$2" -o "$work/picture.png" --width 900
  keep "$1"
}

"$bin/ambrelune-cli" layout "$example" -o "$june" --seed 1 --quiet
draw docs/before.png "$example"
draw docs/after.png "$june"

sit_down "$display"
# So long that it is still running.
prefer "[solver]
stopCriteria=1
maxSeconds=600"
cp "$example" "$HOME/wedding.kw"
open_plan "$HOME/wedding.kw"
xdotool key ctrl+l
active "Auto layout"
shoot_window help/tutorial_layout.png
close_program

prefer ""
open_plan "$june"
xdotool key ctrl+Down ctrl+Left
pause 1
xdotool mousemove "${conflicts_button[@]}" mousedown 1
shoot help/tutorial_wishes.png "${pane[@]}"
xdotool mouseup 1 mousemove "${expand_button[@]}" click 1
pause 1
xdotool mousemove "${colours_button[@]}" click 1
active "Fonts and colours"
# From OK back to the list of themes, and on to the first button beside it.
xdotool key shift+Tab shift+Tab type sea
xdotool key Tab space
shoot_window help/tutorial_theme.png
close_program

# On a fine screen, and without the window manager's title.
rm "$work/display"
sit_down 2000x1180
open_plan "$june" 2
xdotool key ctrl+Down alt+f Escape
shoot docs/window.png 0 20 2000 1158
close_program
