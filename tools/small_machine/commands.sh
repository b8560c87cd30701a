# shellcheck shell=dash disable=SC2154
# The commands that a scenario can run in the guest. This file is on the disk of the programs. session.sh sources it for
# each command of the host, and defines $programs, $logs, wine and await.

carriage_return=$(printf '\r')

# Starts a program from that disk and does not wait for it:   start NAME [ARGUMENT...]
start() {
  local name=$1
  shift
  cd "$programs" || return
  wine "C:\\QDIX\\$name" "$@" >"$logs/$name.txt" 2>&1 </dev/null &
}

start_probe() {
  mkfifo /tmp/to-probe /tmp/from-probe
  wine 'C:\QDIX\qdix_probe.exe' serve <>/tmp/to-probe 1<>/tmp/from-probe 2>&1 &
}

# Asks the probe that start_probe started. Starting a program for each question would take memory and so change what is
# measured here.
probe() {
  local line
  exec 4>/tmp/to-probe 5</tmp/from-probe
  echo "$*" >&4
  while read -r line <&5; do
    line=${line%"$carriage_return"}
    case $line in "=== "*) return "${line#=== }" ;; esac
    echo "$line"
  done
  echo "the probe is gone"
  return 1
}

# Waits until the probe's answer matches a shell pattern:   await_answer SECONDS PATTERN QUESTION...
await_answer() {
  local seconds=$1 answer=$2
  shift 2
  await "$seconds" answers "$answer" "$@"
}

answers() {
  local pattern=$1
  shift
  # shellcheck disable=SC2254  # a pattern is intended
  case $(probe "$@") in $pattern) return 0 ;; esac
  return 1
}

# True if more than this many KB are available, as Wine counts them:   has_available KB
has_available() {
  local name value rest available=0
  while read -r name value rest; do
    case $name in MemFree: | Buffers: | Cached:) available=$((available + value)) ;; esac
  done </proc/meminfo
  [ $available -gt "$1" ]
}

# Keeps the processor busy until stop_work.
start_work() {
  while :; do :; done &
  echo $! >/tmp/work
}

stop_work() { kill "$(cat /tmp/work)"; }

# Closes open message boxes. True once the caption of the main window shows its figure.
shows_figures() {
  probe answer-boxes >/dev/null
  case $(probe caption) in *" MB   Q-DIX") return 0 ;; esac
  return 1
}

# Starts a program that holds memory and does nothing:   start_idle NUMBER MEGABYTES
start_idle() {
  mkfifo "/tmp/idle-$1"
  wine 'C:\QDIX\idle.exe' "$2" "$1" <>"/tmp/idle-$1" >"$logs/idle-$1.txt" 2>&1 &
  echo $! >"/tmp/idle-$1.pid"
  await 300 grep -q holds "$logs/idle-$1.txt"
}

# Lets it read its memory, which brings the memory back into RAM, and prints its answer:   wake_idle NUMBER
wake_idle() {
  local lines
  lines=$(grep -c wrong "$logs/idle-$1.txt")
  echo >"/tmp/idle-$1"
  await 300 has_lines "$((lines + 1))" "$logs/idle-$1.txt" && tail -n 1 "$logs/idle-$1.txt"
}

# Ends it:   end_idle NUMBER
end_idle() {
  local pid
  pid=$(cat "/tmp/idle-$1.pid")
  echo end >"/tmp/idle-$1"
  await 60 has_ended "$pid"
}

has_ended() { [ ! -d "/proc/$1" ]; }

has_lines() { [ "$(grep -c wrong "$2")" -ge "$1" ]; }

# Prints the kernel's figures for the machine, and the memory of each program in RAM and in the swap file, in KB.
figures() {
  cat /proc/uptime /proc/meminfo
  grep -E '^pswp' /proc/vmstat
  grep -HE '^(Name|VmRSS|VmSwap):' /proc/[0-9]*/status 2>/dev/null || true
}

# Adds a program to the launcher's list:   add_to_launcher NAME COMMAND FOLDER
add_to_launcher() { printf '%-55s%-255s%-255s' "$@" >>"$programs/launcher.dat"; }

# Writes these lines as system.ini.
write_system_ini() { printf '%s\r\n' "$@" >/prefix/drive_c/windows/system.ini; }

# Prints the memory of a program that runs as one process, as the kernel counts it:   memory_of NAME
memory_of() {
  local status
  status=$(grep -ls "^Name:[[:space:]]*$1\$" /proc/[0-9]*/status) && cat "${status%status}smaps_rollup"
}

start_notepad() { wine notepad >"$logs/notepad.txt" 2>&1 </dev/null & }

# Makes a copy of notepad without the mark by which Wine recognizes its own programs: Wine loads it like any other program.
make_other_notepad() {
  local mark='Wine builtin DLL' blank='                ' copy=/prefix/drive_c/other.exe
  sed "s/$mark/$blank/" /prefix/drive_c/windows/notepad.exe >$copy && ! grep -q "$mark" $copy
}

start_other_notepad() {
  make_other_notepad || return
  wine 'C:\other.exe' >"$logs/other.txt" 2>&1 </dev/null &
}

# Presses OK in the message boxes of the main program and prints their texts; false if there is none.
answer_box() {
  local texts
  texts=$(probe answer-boxes) && [ -n "$texts" ] && echo "$texts"
}

# Limits the memory that the kernel still promises to this many KB, and forbids overcommitment:   refuse_overcommit KB
refuse_overcommit() {
  local name value rest committed=0 swap=0
  while read -r name value rest; do
    case $name in
      Committed_AS:) committed=$value ;;
      SwapTotal:) swap=$value ;;
    esac
  done </proc/meminfo
  echo $((committed - swap + $1)) >/proc/sys/vm/overcommit_kbytes && echo 2 >/proc/sys/vm/overcommit_memory
}

allow_overcommit() { echo 0 >/proc/sys/vm/overcommit_memory; }

is_running() { ! is_gone "$1"; }

is_gone() { ! grep -qs "^Name:[[:space:]]*$1\$" /proc/[0-9]*/status; }

# True if the kernel has written more than this many pages to the swap disk:   pages_out PAGES
pages_out() {
  local name value
  while read -r name value; do
    if [ "$name" = pswpout ]; then [ "$value" -gt "$1" ] && return; fi
  done </proc/vmstat
  return 1
}
