#!/usr/bin/env bash
# Configures and builds one preset:   build.sh PRESET [TARGET...]
# Only configures it:                 build.sh --configure PRESET
# The output goes to build/logs/PRESET.log; its end is shown if something fails.
set -euo pipefail

if (($# == 0)); then
  sed -n '2,4s/^# //p' "${BASH_SOURCE[0]}" >&2
  exit 2
fi
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
configures_only=false
if [ "$1" = --configure ]; then
  configures_only=true
  shift
fi
preset=$1
shift
log="build/logs/$preset.log"
mkdir -p build/logs

targets=()
if (($# > 0)); then targets=(--target "$@"); fi

# Runs one step of the build; if it fails, shows the last lines of the log and returns false.
step() {
  if "$@" >>"$log" 2>&1 </dev/null; then return 0; fi
  echo "build: '$*' failed; the end of $log:" >&2
  tail -n 100 "$log" >&2
  return 1
}

# Configures what has changed. Ninja knows every file and folder that a configured build depends on, except the presets.
configure() {
  if [ "build/$preset/build.ninja" -nt CMakePresets.json ]; then
    step cmake --build --preset "$preset" --target build.ninja
  else
    step cmake --preset "$preset"
  fi
}

: >"$log"
configure
if "$configures_only"; then exit 0; fi
echo "build: $preset${*:+ ($*)}"
step cmake --build --preset "$preset" "${targets[@]}"
