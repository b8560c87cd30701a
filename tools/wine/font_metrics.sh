#!/usr/bin/env bash
# Prints the fonts of captions, menus, boxes and tool tips as a registry file. They are stored as binary records,
# which would be unreadable in a registry file written by hand.
set -euo pipefail

# Prints a LOGFONTW of MS Sans Serif, 8 points, in the notation of registry files. $1 is its weight (400 or 700).
logical_font() {
  local name="MS Sans Serif" weight=$1 index
  printf 'f5,ff,ff,ff,00,00,00,00,00,00,00,00,00,00,00,00'                      # height -11, width, angles
  printf ',%02x,%02x,00,00,00,00,00,00,00,00,00,00' $((weight % 256)) $((weight / 256)) # weight, style, precision
  for ((index = 0; index < 32; index++)); do
    if ((index < ${#name})); then printf ',%02x,00' "'${name:index:1}"; else printf ',00,00'; fi
  done
}

# The fonts are stored as binary records, so they are generated here.
write_font_metrics() {
  local value weight
  printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Control Panel\\Desktop\\WindowMetrics]\n'
  for value in CaptionFont SmCaptionFont MenuFont StatusFont MessageFont IconFont; do
    case $value in CaptionFont | SmCaptionFont) weight=700 ;; *) weight=400 ;; esac
    printf '"%s"=hex:%s\n' "$value" "$(logical_font "$weight")"
  done
}

write_font_metrics
