# Sourced by tests that need a real display: a virtual one, programs on it, and waiting for what
# they do. However the test ends, everything that it started ends, too.

started=()

# start COMMAND...: runs a program in the background. $started_pid is its process.
start() {
  # The kernel ends it even where a killed test cannot.
  setpriv --pdeathsig KILL -- "$@" &
  started_pid=$!
  started+=("$started_pid")
}

stop_all() {
  local index
  # The display last, so that no program complains about losing it.
  for ((index = ${#started[@]} - 1; index >= 0; index--)); do
    kill "${started[index]}" 2>/dev/null || true
    wait "${started[index]}" 2>/dev/null || true
  done
  started=()
  rm -rf "$work"
}

# A directory of the test's own, with an empty home in it.
work=$(mktemp -d)
trap stop_all EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

mkdir -m 700 "$work/home" "$work/runtime"
mkfifo "$work/never"
export HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime"
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XAUTHORITY WAYLAND_DISPLAY
# Titles of windows are lost on programs that know ASCII only.
export LC_ALL=C.UTF-8

# fail TEXT...: ends the test.
fail() {
  echo "$*" >&2
  exit 1
}

# start_display [SIZE]: a virtual display of a free number, which $DISPLAY then names.
start_display() {
  mkfifo "$work/display"
  start Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 "${1:-1280x1024}x24" \
    3<>"$work/display" 2>"$work/xvfb.log"
  local number
  read -r -t 20 number <>"$work/display" || fail "No display: $(cat "$work/xvfb.log")"
  export DISPLAY=":$number" QT_QPA_PLATFORM=xcb
}

# wait_until SECONDS COMMAND...: runs the command again and again until it succeeds. Fails if it
# does not in that time.
wait_until() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$deadline" ] || return 1
    read -r -t 0.05 <>"$work/never" || true
  done
}

find_window() {
  xdotool search --onlyvisible --limit 1 --name "^$1\$" >"$work/window-found"
}

# wait_for_window SECONDS TITLE: until a window of this very title is to be seen; prints its id.
wait_for_window() {
  # Searched for once: the window manager takes a new window away for a moment to frame it.
  wait_until "$1" find_window "$2" || return 1
  cat "$work/window-found"
}
