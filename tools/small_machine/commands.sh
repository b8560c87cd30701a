# shellcheck shell=dash disable=SC2154
# What a scenario lets the small machine do. It lies beside the programs on their disk, and session.sh reads it for each
# command of the host; $programs, $logs, wine and await come from there.

carriage_return=$(printf '\r')

# Starts a program of that disk and leaves it running:   start NAME [ARGUMENT...]
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

# Asks the probe that start_probe left running. A program started for each question would need memory, and memory is
# what is measured here.
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

# Puts a program on the launcher's list:   list_program NAME COMMAND FOLDER
list_program() { printf '%-55s%-255s%-255s' "$@" >>"$programs/launcher.dat"; }

# Waits until the probe's answer is like a pattern of the shell:   await_answer SECONDS PATTERN QUESTION...
await_answer() {
  local seconds=$1 answer=$2
  shift 2
  await "$seconds" answers "$answer" "$@"
}

answers() {
  local pattern=$1
  shift
  # shellcheck disable=SC2254  # a pattern is what it is
  case $(probe "$@") in $pattern) return 0 ;; esac
  return 1
}

# True when more than so many KB are available, as Wine counts them.
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

# True once the caption of the main window begins with a figure.
shows_figures() {
  probe answer-boxes >/dev/null
  case $(probe caption) in *" MB   Q-DIX") return 0 ;; esac
  return 1
}

# A program that holds memory and does nothing:   start_idle NUMBER MEGABYTES
start_idle() {
  mkfifo "/tmp/idle-$1"
  wine 'C:\QDIX\idle.exe' "$2" "$1" <>"/tmp/idle-$1" >"$logs/idle-$1.txt" 2>&1 &
  echo $! >"/tmp/idle-$1.pid"
  await 300 grep -q holds "$logs/idle-$1.txt"
}

# Lets it read its memory, which brings it back into RAM, and prints what it says about it.
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

# The kernel's figures: of the machine, and of each program's memory in RAM and in the swap file, in KB.
figures() {
  cat /proc/uptime /proc/meminfo
  grep -E '^pswp' /proc/vmstat
  grep -HE '^(Name|VmRSS|VmSwap):' /proc/[0-9]*/status 2>/dev/null || true
}

# Adds a program to the list of the launcher:   add_to_launcher NAME COMMAND FOLDER
add_to_launcher() { printf '%-55s%-255s%-255s' "$@" >>"$programs/launcher.dat"; }

# Makes system.ini of these lines.
write_system_ini() { printf '%s\r\n' "$@" >/prefix/drive_c/windows/system.ini; }

# Memory of the one process of a program, as the kernel counts it:   memory_of NAME
memory_of() {
  local status
  status=$(grep -ls "^Name:[[:space:]]*$1\$" /proc/[0-9]*/status) && cat "${status%status}smaps_rollup"
}

is_there() { ! is_gone "$1"; }

start_notepad() { wine notepad >"$logs/notepad.txt" 2>&1 </dev/null & }

# The same without the mark by which Wine knows its own programs: it is loaded as any other program is.
start_other_notepad() {
  local mark='Wine builtin DLL' blank='                ' copy=/prefix/drive_c/other.exe
  sed "s/$mark/$blank/" /prefix/drive_c/windows/notepad.exe >$copy && ! grep -q "$mark" $copy || return
  wine 'C:\other.exe' >"$logs/other.txt" 2>&1 </dev/null &
}

# Presses OK in the boxes of the main program and prints what they said; false when there is none.
answer_box() {
  local texts
  texts=$(probe answer-boxes) && [ -n "$texts" ] && echo "$texts"
}

# Lets the kernel promise only so many KB more, and no memory that it does not have.
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

# True when the kernel has written more pages than that to the swap disk.
pages_out() {
  local name value
  while read -r name value; do
    if [ "$name" = pswpout ]; then [ "$value" -gt "$1" ] && return; fi
  done </proc/vmstat
  return 1
}
