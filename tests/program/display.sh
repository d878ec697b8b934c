# A display of its own with a window manager for the program that sources this, and all gone with it.
set -euo pipefail
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM QT_SCALE_FACTOR DBUS_SESSION_BUS_ADDRESS
export LC_ALL=C.UTF-8 SDL_AUDIODRIVER=dummy
leaks=$(dirname "$(realpath "${BASH_SOURCE[0]}")")/leaks.supp
export LSAN_OPTIONS="${LSAN_OPTIONS:+$LSAN_OPTIONS:}suppressions=$leaks:print_suppressions=0"
work=$(mktemp -d)
pids=()
cleanup() {
  local status=$?
  [ $status -eq 0 ] || { wmctrl -l; cat "$work/errors"; } >&2 || true
  kill "${pids[@]}" 2>/dev/null || true
  wait 2>/dev/null || true
  "$@"
  rm -rf --one-file-system "$work"
}
trap cleanup EXIT
set -E
trap 'echo "failed at line $LINENO: $BASH_COMMAND" >&2' ERR
trap 'exit 1' INT TERM

fail() { echo "$*" >&2; exit 1; }
# await SECONDS COMMAND...: until it succeeds.
await() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || fail "waited in vain: $*"
    sleep 0.05
  done
}
gone() { ! kill -0 "$1" 2>/dev/null; }
managed() { wmctrl -m >/dev/null 2>&1; }
# Runs in the background until the end.
start() { "$@" & pids+=($!); }
open_display() {
  start Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp >"$work/display" 2>/dev/null
  await 30 test -s "$work/display"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  start openbox >/dev/null 2>&1
  await 30 managed
}
title() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
active() { [[ "$(title)" =~ $1 ]]; }
key() { xdotool key --delay 15 "$@"; }
ends() { # ends PROGRAM: it has ended well, and said nothing
  await 30 gone "$1"
  wait "$1" || fail "the program ended with $?"
  [ ! -s "$work/errors" ] || fail "the program wrote to its standard error"
}
