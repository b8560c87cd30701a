#!/bin/busybox sh
# shellcheck shell=dash
#
# Process 1 of the small machine after the initial RAM disk. The host writes one shell command per line to the
# second serial port; the answer is the command's output and a last line "=== STATUS". The functions here are those that
# the host needs to make the machine; the functions for a run are in commands.sh, which comes with the programs.
export PATH=/bin:/usr/bin:/usr/sbin HOME=/root TERM=dumb DISPLAY=:0
export WINEPREFIX=/prefix WINEARCH=win32 WINEDEBUG=-all WINESERVER=/usr/lib/wine/wineserver
export WINEDLLOVERRIDES='mscoree,mshtml=d;winemenubuilder.exe=d'
readonly port=/dev/ttyS1 logs=/tmp/logs programs=/prefix/drive_c/QDIX

wine() { /usr/lib/wine/wine "$@"; }

# Waits until a command succeeds, for at most SECONDS:   await SECONDS COMMAND...
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

# The kernel numbers input devices in the order in which it finds them; the X server must know which is which.
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

# Prints the processor's idle time since the start, in hundredths of a second.
idle_time() {
  local idle rest
  read -r rest rest rest rest idle rest </proc/stat
  echo "$idle"
}

# Waits a second; true if the processor was idle for nine tenths of it.
is_at_rest() {
  local before
  before=$(idle_time)
  sleep 1
  [ $(($(idle_time) - before)) -ge 90 ]
}

server_listens() { ls /tmp/wine-*/server-*/socket >/dev/null 2>&1; }

# Starts the desktop with its taskbar. Waits for the server first, because two programs that both start it conflict.
start_desktop() {
  wine explorer /desktop=qdix,800x600 >$logs/explorer.log 2>&1 &
  await 120 server_listens && await 30 is_at_rest
}

# Fills /prefix with a Windows 98, then removes the libraries that Wine copies into it, because the image has them
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
  # The name of the server's folder in /tmp. It disappears when the machine is switched off.
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

# Mounts the disk with the programs of this run as the folder C:\QDIX.
use_programs() { mkdir -p $programs && mount -t ext4 -o noatime "$1" $programs; }

# Serves the host in a process of its own: process 1 gets a signal whenever an orphaned program ends, and the shell's
# `read` then loses the part of a line that it has already read.
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
# The image was packed by another user, and Wine refuses a prefix that its user does not own.
chown 0:0 /root /prefix
stty -F $port raw -echo
echo "session: listening on $port"
exec 3<>$port
serve &
while :; do sleep 3600; done
