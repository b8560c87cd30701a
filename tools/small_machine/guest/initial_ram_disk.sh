#!/bin/busybox sh
# shellcheck shell=dash
#
# Process 1 in the initial RAM disk: loads the drivers in /modules, mounts the first disk and continues
# with session.sh on it.
b=/bin/busybox
$b mount -t devtmpfs dev /dev
$b mount -t proc proc /proc
while read -r module; do
  $b insmod "/modules/$module.ko" || echo "the driver $module was refused"
done </modules/order
tenths=0
until [ -b /dev/vda ] || [ $tenths -ge 100 ]; do
  $b usleep 100000
  tenths=$((tenths + 1))
done
if ! $b mount -t ext4 -o noatime /dev/vda /root; then
  echo "the root disk cannot be mounted"
  $b poweroff -f
fi
$b umount /proc
$b mount -o move /dev /root/dev
exec $b switch_root /root /session.sh
