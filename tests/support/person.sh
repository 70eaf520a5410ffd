# Sourced by tests that use the program as a person does, on a display of their own, by keys and
# clicks. They set $screenshot to the program that takes pictures, and $scale to 2 on a fine screen.

. "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/xvfb.sh"

# keep_pictures_in DIRECTORY: which is emptied.
keep_pictures_in() {
  pictures=$1
  rm -rf "$pictures"
  mkdir -p "$pictures"
}

# sit_down [SIZE]: a display with a window manager, and an empty home to save into.
sit_down() {
  start_display "${1:-1280x900}"
  start openbox
  cd "$HOME"
}

# picture NAME: of all that is on the display.
picture() {
  "$screenshot" "$pictures/$1.png"
}

window_is_gone() {
  ! xdotool search --onlyvisible --name "^$1\$"
}

# active TITLE: until the window of that title has the keys.
active() {
  wait_for_window 30 "$1" >"$work/window" || fail "There is no window '$1'"
  # On a busy machine the window manager may have given them to a window that came late.
  wait_until 10 has_focus "$1" || xdotool windowactivate "$(cat "$work/window")"
  wait_until 10 has_focus "$1" || fail "The window '$1' does not get the keys"
}

has_focus() {
  [ "$(xdotool getactivewindow getwindowname)" = "$1" ]
}

gone() {
  wait_until 10 window_is_gone "$1" || fail "The window '$1' stays"
}

# left: the program has ended by itself, and well.
left() {
  local process=$started_pid
  wait_until 30 process_is_gone "$process" || fail "The program does not end"
  wait "$process" || fail "The program ends with status $?"
}

process_is_gone() {
  ! kill -0 "$1" || [ "$(ps -o stat= -p "$1" | cut -c 1)" = Z ]
}

# near NUMBER NUMBER: as near as pixels and a hand are.
near() {
  local way=$(($1 - $2))
  [ "${way#-}" -le 4 ]
}

# extent COLOUR: where on the display it is, "x y width height".
extent() {
  "$screenshot" "$work/look.png" "$1"
}

# carry FROM TO: with the button down, and no faster than a hand is.
carry() {
  local from to step steps=8
  read -ra from <<<"$1"
  read -ra to <<<"$2"
  xdotool mousemove "${from[@]}"
  breathe
  xdotool mousedown 1
  for ((step = 1; step <= steps; ++step)); do
    breathe
    xdotool mousemove $((from[0] + (to[0] - from[0]) * step / steps)) \
      $((from[1] + (to[1] - from[1]) * step / steps))
  done
}

breathe() {
  read -r -t 0.08 <>"$work/never" || true
}

# What is dragged follows the pointer, below it on the right.
guest_is_dragged_to() {
  local x y window X Y WIDTH HEIGHT SCREEN
  read -r x y <<<"$1"
  for window in $(xdotool search --onlyvisible --class ambrelune); do
    eval "$(xdotool getwindowgeometry --shell "$window")"
    [ "$WIDTH" -eq $((32 * scale)) ] && near "$X" $((x + 10 * scale)) &&
      near "$Y" $((y + 10 * scale)) && return
  done
  return 1
}
