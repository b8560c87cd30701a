#!/usr/bin/env bash
# Downloads the i386 packages of the small machine that the private Wine lacks:   get_packages.sh FOLDER
# These are the kernel, an X server for a plain frame buffer, a shell, and Wine's two programs as packed, because those of
# the private Wine are patched for this host. The libraries are listed one by one: the X server's own dependencies would
# add twice as much. If anything fails, FOLDER does not exist afterwards.
set -euo pipefail

# shellcheck source=tools/wine/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../wine/common.sh"
# shellcheck source=tools/wine/archive.sh
source "$wine_tools_dir/archive.sh"

# This package depends on the current kernel without PAE, which runs on a Pentium II.
readonly kernel_flavour=linux-image-686
readonly packages=(
  busybox-static wine32
  xserver-xorg-core xserver-xorg-video-fbdev xserver-xorg-input-evdev xkb-data x11-xkb-utils
  libaudit1 libbsd0 libcap-ng0 libcap2 libdbus-1-3 libdrm2 libevdev2 libfontenc1 libgcrypt20 libgl1 libglvnd0 libglx0
  libgpg-error0 libice6 liblz4-1 liblzma5 libmd0 libmtdev1 libpciaccess0 libpcre2-8-0 libpixman-1-0 libselinux1 libsm6
  libsystemd0 libudev1 libunwind8 libuuid1 libxau6 libxcvt0 libxdmcp6 libxfont2 libxkbfile1 libxmu6 libxshmfence1 libxt6
  libzstd1
)
readonly folder=${1:?the folder for the packages}

work_dir=$(mktemp -d "$folder.XXXXXX")
trap 'rm -rf "$work_dir"' EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# The name of the kernel's own package contains its version.
kernel_package() {
  download_packages i386 "" download "$kernel_flavour" || return
  dpkg-deb -f "$work_dir/archives/$kernel_flavour"_*.deb Depends | grep -o '^linux-image-[^ ,]*'
}

kernel=$(kernel_package)
rm "$work_dir/archives/$kernel_flavour"_*.deb
download_packages i386 "" download "$kernel" "${packages[@]}"
mkdir "$work_dir/packages"
mv "$work_dir"/archives/*.deb "$work_dir/packages/"
mv "$work_dir/packages" "$folder"
