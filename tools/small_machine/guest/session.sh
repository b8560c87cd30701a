#!/bin/busybox sh
# shellcheck shell=dash
#
# Process 1 of the small machine after the initial RAM disk. It does what the host writes to the second serial port,
# a command of this shell per line, and answers with the command's output and a last line "=== STATUS". The functions
# here are what the host needs to make the machine; commands.sh, which comes with the programs, has those of a run.
export PATH=/bin:/usr/bin:/usr/sbin HOME=/root TERM=dumb DISPLAY=:0
export WINEPREFIX=/prefix WINEARCH=win32 WINEDEBUG=-all WINESERVER=/usr/lib/wine/wineserver
export WINEDLLOVERRIDES='mscoree,mshtml=d;winemenubuilder.exe=d'
readonly port=/dev/ttyS1 logs=/tmp/logs programs=/prefix/drive_c/QDIX

wine() { /usr/lib/wine/wine "$@"; }

# Waits until a command is true, at most so many seconds:   await SECONDS COMMAND...
await() {
  local tenths=$(($1 * 10))
  shift
  until "$@"; do
    tenths=$((tenths - 1))
    if [ $tenths -le 0 ]; then
      echo "waited in vain for: $*"
      return 1
    fi
    usleep 100000
  done
}

# The kernel numbers input devices as it finds them; the X server needs to know which is which.
name_input_devices() {
  local device
  for device in /sys/class/input/event*; do
    case $(cat "$device/device/name") in
      *Tablet*) ln -sf "${device##*/}" /dev/input/pointer ;;
      *keyboard* | *Keyboard*) ln -sf "${device##*/}" /dev/input/keyboard ;;
    esac
  done
  [ -e /dev/input/pointer ] && [ -e /dev/input/keyboard ]
}

start_screen() {
  name_input_devices || { echo "no pointer or no keyboard"; return 1; }
  /usr/lib/xorg/Xorg :0 vt1 -keeptty -config /etc/X11/xorg.conf -dpi 96 -nolisten tcp -noreset -extension GLX \
    -logfile $logs/xorg.log >$logs/xorg.out 2>&1 &
  await 60 test -S /tmp/.X11-unix/X0 || { tail -n 20 $logs/xorg.log; return 1; }
}

# Hundredths of a second that the processor has been idle since the start.
idle_time() {
  local idle rest
  read -r rest rest rest rest idle rest </proc/stat
  echo "$idle"
}

# True when the processor has been idle for nine tenths of a second that passes meanwhile.
is_at_rest() {
  local before
  before=$(idle_time)
  sleep 1
  [ $(($(idle_time) - before)) -ge 90 ]
}

server_listens() { ls /tmp/wine-*/server-*/socket >/dev/null 2>&1; }

# The desktop with its taskbar. Two programs that both start the server disturb each other, so the first waits for it.
start_desktop() {
  wine explorer /desktop=qdix,800x600 >$logs/explorer.log 2>&1 &
  await 120 server_listens && await 30 is_at_rest
}

# Fills /prefix with a Windows 98 and gives back the room of the libraries that Wine copies into it: the image has them
# already. Used once, when the image is made.
make_prefix() (
  unset DISPLAY # nothing may pop up
  if ! fill_prefix >$logs/prefix.log 2>&1; then
    tail -n 5 $logs/prefix.log
    exit 1
  fi
  cd /prefix/drive_c/windows/system32 || exit
  for file in *; do
    original=/usr/lib/i386-linux-gnu/wine/i386-windows/$file
    if [ -f "$original" ] && cmp -s "$file" "$original"; then ln -f "$original" "$file"; fi
  done
  # The name of the server's folder in /tmp, which ends with this machine.
  rm -f /prefix/wineserver
  sync
  fstrim /
)

fill_prefix() {
  wine wineboot --init && $WINESERVER -w || return
  local fonts=/prefix/drive_c/windows/Fonts
  ln -f /usr/share/wine/fonts/* $fonts/
  find /usr/share/fonts -name 'Liberation*.ttf' -exec ln -f {} $fonts/ \;
  wine regedit /S 'Z:\settings.reg' && wine regedit /S 'Z:\fonts.reg' || return
  $WINESERVER -k
  $WINESERVER -w
}

use_swap() { mkswap "$1" >/dev/null && swapon "$1"; }

# The disk with the programs of this run, as the folder C:\QDIX.
use_programs() { mkdir -p $programs && mount -t ext4 -o noatime "$1" $programs; }

# Does what the host asks. A process of its own: process 1 is told whenever a program ends whose parent is gone, and the
# shell's `read` forgets the half of a line that it has then.
serve() {
  local command
  while IFS= read -r command <&3; do
    (
      if [ -f $programs/commands.sh ]; then . $programs/commands.sh; fi
      eval "$command"
    ) >&3 2>&1 3>&-
    echo "=== $?" >&3
  done
}

/bin/busybox --install -s /bin
mount -t proc proc /proc
mount -t sysfs sys /sys
mount -t tmpfs -o size=24m,mode=1777 tmp /tmp
mkdir -p $logs /tmp/.X11-unix
# The image was packed by somebody else; Wine refuses a prefix that is not its user's own.
chown 0:0 /root /prefix
stty -F $port raw -echo
echo "session: listening on $port"
exec 3<>$port
serve &
while :; do sleep 3600; done
