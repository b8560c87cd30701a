#!/usr/bin/env bash
# One manual release on the current screen:   release_session.sh PROGRAM PROBE PICTURE.png
# Starts the program, feeds its CPU graph with the load of this machine, presses "Free Up RAM Now" with the pointer and
# waits for the end of the release. Prints the window's figures before and after and the peak of the program's memory,
# takes a picture and closes the window. The exit code is 0 only if all of that happened.
set -euo pipefail

tools_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly tools_dir
readonly program=${1:?the program to start}
readonly probe=${2:?the program that looks at windows}
readonly picture=${3:?the picture to take}

readonly button=Command1
readonly figures=(lblCPU lblUSAGE lblPercentFree lblSwapfileUsed lblTotalMem lblSwapfile)
readonly start_limit_s=180
readonly release_limit_s=180
readonly close_limit_s=90
readonly probe_limit_s=90

program_pid=""
work_dir=$(mktemp -d)

is_running() { kill -0 "$1" 2>/dev/null; }

# The desktop may outlive this script, so no program may stay open in it.
clean_up() {
  if [ -n "$program_pid" ] && is_running "$program_pid"; then kill "$program_pid" || true; fi
  rm -rf "$work_dir"
}
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# The picture of a failure gets another name, so that $picture always shows a completed release.
fail() {
  printf 'run: %s\n' "$*" >&2
  "$tools_dir/desktop/desktop.sh" photo "${picture%.png}-failed.png" || true
  exit 1
}

# Runs the probe with a limit in seconds.
run_probe() {
  local limit_s=$1
  shift
  timeout "$limit_s" "$tools_dir/wine/wine.sh" "$probe" "$@" </dev/null
}

# Sends the probe one command; the lines of its answer end with CR and LF.
ask() { run_probe "$probe_limit_s" "$@" | tr -d '\r'; }

# Presses OK in every open message box, and prints the texts.
answer_boxes() {
  local texts
  texts=$(ask answer-boxes) || return 0
  if [ -n "$texts" ]; then printf 'run: answered a message box: %s\n' "$texts"; fi
}

start_program() {
  "$tools_dir/wine/wine.sh" "$program" >"$work_dir/program.log" 2>&1 </dev/null &
  program_pid=$!
  local deadline=$((SECONDS + start_limit_s))
  until run_probe 5 wait-window >"$work_dir/window.log" 2>&1; do
    is_running "$program_pid" || fail "the program ended before its window appeared"
    ((SECONDS < deadline)) || fail "the window did not appear within $start_limit_s seconds"
    answer_boxes
  done
  answer_boxes
}

# The CPU graph follows a statistic that Wine does not keep. The probe feeds it the load of this machine until the
# program ends.
feed_load() {
  echo "run: the CPU graph shows the load of this machine, fed by the probe where Windows 98 keeps that statistic"
  : >"$work_dir/feed.log"
  "$tools_dir/wine/wine.sh" "$probe" feed-load >>"$work_dir/feed.log" 2>&1 </dev/null &
  local deadline=$((SECONDS + probe_limit_s))
  until grep -q '^feeding' "$work_dir/feed.log"; do
    ((SECONDS < deadline)) || fail "the load could not be fed: $(tail -n 1 "$work_dir/feed.log")"
    sleep 0.1
  done
}

# Waits until the window shows the figures of its first refresh.
wait_for_figures() {
  local deadline=$((SECONDS + start_limit_s))
  until [[ "$(ask caption)" == *' MB   Q-DIX'* ]]; do
    is_running "$program_pid" || fail "the program ended by itself"
    ((SECONDS < deadline)) || fail "the caption showed no figure within $start_limit_s seconds"
    answer_boxes
  done
}

# Waits until the button is enabled, answering message boxes on the way.
wait_for_button() {
  local deadline=$((SECONDS + release_limit_s))
  until [ "$(ask enabled "$button")" = 1 ]; do
    is_running "$program_pid" || fail "the program ended by itself"
    ((SECONDS < deadline)) || fail "the button was not enabled within $release_limit_s seconds"
    answer_boxes
  done
}

# Writes caption, figures and committed bytes, one per line, to the file $1.
read_figures() {
  local file=$1 name
  ask caption >"$file" || fail "the caption could not be read"
  for name in "${figures[@]}"; do
    ask text "$name" >>"$file" || fail "the text of $name could not be read"
  done
  ask committed >>"$file" || fail "the memory of the program could not be read"
}

print_figures() {
  local -a before after
  mapfile -t before <"$work_dir/before"
  mapfile -t after <"$work_dir/after"
  local -a names=(caption "${figures[@]}" "committed bytes")
  if ((${#before[@]} != ${#names[@]} || ${#after[@]} != ${#names[@]})); then
    fail "the window gave ${#before[@]} and ${#after[@]} figures instead of ${#names[@]}"
  fi
  local index
  printf '%-18s %-36s %s\n' figure before after
  for ((index = 0; index < ${#names[@]}; index++)); do
    printf '%-18s %-36s %s\n' "${names[index]}" "${before[index]}" "${after[index]}"
  done
  printf '%-18s %s\n' "peak, bytes" "$1"
}

# Moves the pointer to the middle of the button and presses its left button, as a user does.
press_button() {
  local x y width height
  read -r x y width height < <(ask rect "$button") || fail "the place of the button is unknown"
  xdotool mousemove --sync $((x + width / 2)) $((y + height / 2)) mousedown 1 mouseup 1
}

# Presses the button while the probe samples the program's memory, and sets peak_bytes.
release() {
  : >"$work_dir/peak"
  run_probe "$release_limit_s" peak >>"$work_dir/peak" 2>"$work_dir/peak.log" &
  local sampler_pid=$! deadline=$((SECONDS + probe_limit_s))
  # The sampler's first line says that it is sampling; an earlier press could be over before that.
  until grep -q '^sampling' "$work_dir/peak"; do
    is_running "$sampler_pid" || fail "the memory of the program could not be sampled"
    ((SECONDS < deadline)) || fail "the sampler did not begin within $probe_limit_s seconds"
    sleep 0.1
  done
  press_button
  while is_running "$sampler_pid"; do
    is_running "$program_pid" || fail "the program ended by itself during the release"
    sleep 0.5
    if is_running "$sampler_pid"; then answer_boxes; fi
  done
  wait "$sampler_pid" || fail "the button was not disabled and enabled again after it was pressed"
  peak_bytes=$(tail -n 1 "$work_dir/peak" | tr -d '\r')
  [[ "$peak_bytes" =~ ^[0-9]+$ ]] || fail "the sampler gave no number of bytes: '$peak_bytes'"
}

# Closes the window, answers the questions about it, and waits until the program has ended by itself.
close_program() {
  run_probe "$close_limit_s" close >"$work_dir/close.log" 2>&1 &
  local closer_pid=$! deadline=$((SECONDS + close_limit_s))
  while is_running "$program_pid"; do
    ((SECONDS < deadline)) || fail "the program did not end within $close_limit_s seconds after its window was closed"
    sleep 0.5
    if is_running "$program_pid"; then answer_boxes; fi
  done
  wait "$closer_pid" || fail "the window could not be closed: $(tail -n 1 "$work_dir/close.log")"
  local status=0
  wait "$program_pid" || status=$?
  ((status == 0)) || fail "the program ended with exit code $status"
}

main() {
  rm -f "$picture" "${picture%.png}-failed.png"
  start_program
  wait_for_figures
  run_probe "$close_limit_s" close-help || fail "the first steps could not be closed"
  feed_load
  wait_for_button
  read_figures "$work_dir/before"
  release
  wait_for_button
  answer_boxes
  read_figures "$work_dir/after"
  print_figures "$peak_bytes"
  "$tools_dir/desktop/desktop.sh" photo "$picture"
  close_program
  echo "run: released, photographed ($picture) and closed"
}

main
