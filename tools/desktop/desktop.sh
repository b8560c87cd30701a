#!/usr/bin/env bash
# A private screen with a Windows desktop, its taskbar and its notification area on it: 800 x 600 in true colour, or
# what QDIX_SCREEN (640x480) and QDIX_DEPTH (8 bits per pixel, few colours that nobody can change) say.
#   desktop.sh run COMMAND [ARGUMENT...]   runs the command in there (DISPLAY set) and passes its exit code on
#   desktop.sh photo FILE.png              takes a picture of the whole screen; called by a command that runs in there
# Programs started with tools/wine/wine.sh appear in the desktop and get a button in the taskbar. When the command
# ends, or a signal arrives, every Windows program and the screen are ended. Inside a desktop, `run` uses that one.
set -euo pipefail

tools_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly tools_dir
readonly wine="$tools_dir/wine/wine.sh"
readonly screen=${QDIX_SCREEN:-800x600}
readonly depth=${QDIX_DEPTH:-24}
# With few colours, a palette that programs can change would start empty. Class 2 of the X server has a fixed one.
readonly colour_class=$((depth > 8 ? 4 : 2))
readonly start_limit_s=180
readonly lock_limit_s=1800
readonly leftover_limit_s=60
# Ends a child even if this script is killed without cleaning up. Without their screen Wine's programs also end.
readonly with_this_script=(setpriv --pdeathsig TERM)

screen_pid=""
explorer_pid=""
command_pid=""
state_dir=""

say() { printf 'desktop: %s\n' "$*" >&2; }

is_running() { [ -n "$1" ] && kill -0 "$1" 2>/dev/null; }

# Ends the child $1 (if any): first with a request, after five seconds by force.
end_child() {
  local pid=$1 tenths
  if ! is_running "$pid"; then return 0; fi
  kill "$pid" 2>/dev/null || true
  for ((tenths = 0; tenths < 50; tenths++)); do
    if ! is_running "$pid"; then break; fi
    sleep 0.1
  done
  kill -9 "$pid" 2>/dev/null || true
  wait "$pid" 2>/dev/null || true
}

clean_up() {
  trap '' HUP INT TERM
  # The command leads its own process group, so everything that it started ends with it.
  if [ -n "$command_pid" ]; then kill -TERM -- "-$command_pid" 2>/dev/null || true; fi
  end_child "$command_pid"
  if [ -n "$explorer_pid" ]; then
    "$wine" --server -k >/dev/null 2>&1 || true
    timeout 30 "$wine" --server -w >/dev/null 2>&1 || true
  fi
  end_child "$explorer_pid"
  end_child "$screen_pid"
  if [ -n "$state_dir" ]; then rm -rf "$state_dir"; fi
}

# Starts the X server on a free number that it finds itself, and sets DISPLAY.
start_screen() {
  "${with_this_script[@]}" Xvfb -displayfd 3 -screen 0 "${screen}x$depth" -cc "$colour_class" -dpi 96 -nolisten tcp -noreset \
    3>"$state_dir/number" >"$state_dir/screen.log" 2>&1 9>&- </dev/null &
  screen_pid=$!
  local deadline=$((SECONDS + start_limit_s))
  until [ -s "$state_dir/number" ]; do
    if ! is_running "$screen_pid" || ((SECONDS > deadline)); then
      say "the X server did not start:"
      tail -n 5 "$state_dir/screen.log" >&2
      return 1
    fi
    sleep 0.05
  done
  DISPLAY=":$(tr -d '[:space:]' <"$state_dir/number")"
  export DISPLAY
  unset XAUTHORITY WAYLAND_DISPLAY
}

# True if the desktop window contains a visible window as wide as the screen at its lower edge: the taskbar.
taskbar_is_there() {
  local id
  for id in $(xwininfo -root -tree 2>/dev/null |
    awk -v screen="$screen" '/"explorer.exe"/ && $0 ~ " " substr(screen, 1, index(screen, "x")) "[0-9]+\\+0\\+" &&
      !index($0, screen) { print $1 }'); do
    if xwininfo -id "$id" 2>/dev/null | grep -q 'Map State: IsViewable'; then return 0; fi
  done
  return 1
}

start_windows_desktop() {
  # The prefix names the desktop that a program joins by default; the first program opens it. The desktop exists as long as
  # this one runs.
  "$wine" explorer "/desktop=qdix,$screen" >"$state_dir/explorer.log" 2>&1 9>&- </dev/null &
  explorer_pid=$!
  local deadline=$((SECONDS + start_limit_s))
  until taskbar_is_there; do
    if ! is_running "$explorer_pid" || ((SECONDS > deadline)); then
      say "the taskbar did not appear (limit: $start_limit_s seconds)"
      tail -n 5 "$state_dir/explorer.log" >&2
      return 1
    fi
    sleep 0.1
  done
}

# One desktop per prefix at a time: all programs share the prefix's server, and with it the desktop.
lock_prefix() {
  local prefix=$1
  mkdir -p "$(dirname "$prefix")"
  exec 9>"$prefix.desktop.lock"
  if flock -n 9; then return 0; fi
  say "waiting for another desktop in $(basename "$prefix") to end"
  if ! flock -w "$lock_limit_s" 9; then
    say "it has not ended in $((lock_limit_s / 60)) minutes"
    return 1
  fi
}

# Programs started without a desktop share the server, which then has no screen. Wait until they end, and end what a
# killed script left behind.
empty_prefix() {
  if timeout "$leftover_limit_s" "$wine" --server -w 9>&-; then return 0; fi
  say "ending the Windows programs that are still running in the prefix"
  "$wine" --server -k 9>&- || true
  timeout 30 "$wine" --server -w 9>&-
}

run() {
  if [ -n "${QDIX_DESKTOP:-}" ]; then exec "$@"; fi
  "$tools_dir/wine/prefix.sh"
  lock_prefix "${WINEPREFIX:-$(cd "$tools_dir/.." && pwd)/build/wineprefix}"
  empty_prefix
  state_dir=$(mktemp -d)
  trap clean_up EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  start_screen
  start_windows_desktop
  local status=0
  # Job control gives the command its own process group. Waiting for it in the background lets signals in at once.
  set -m
  QDIX_DESKTOP="$DISPLAY" "${with_this_script[@]}" "$@" 9>&- </dev/null &
  command_pid=$!
  set +m
  wait "$command_pid" || status=$?
  return "$status"
}

# Writes to a new name first, so that a picture is either complete or missing.
photo() {
  local file=$1
  if [ -z "${DISPLAY:-}" ]; then
    say "there is no screen to photograph"
    return 1
  fi
  mkdir -p "$(dirname "$file")"
  import -silent -window root "png:$file.new"
  mv "$file.new" "$file"
}

case "${1:-}" in
  run)
    shift
    if (($# == 0)); then
      say "run needs a command"
      exit 2
    fi
    run "$@"
    ;;
  photo)
    if (($# != 2)); then
      say "photo needs a file name"
      exit 2
    fi
    photo "$2"
    ;;
  *)
    sed -n '2,7s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
    exit 2
    ;;
esac
