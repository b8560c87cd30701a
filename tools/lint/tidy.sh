#!/usr/bin/env bash
# Runs clang-tidy over the sources of one build folder:   tidy.sh BUILD_DIR
# A host build covers the portable code, a win9x build the code of the win32 folders and the run time. A file whose content, headers and rules did not
# change since it was found clean is not looked at again.
set -euo pipefail

build=$1
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
[ -f "$build/compile_commands.json" ] || { echo "tidy: $build has no compile_commands.json; build it first" >&2; exit 1; }
stamps=$build/tidy-stamps
database=$build/tidy-database
mkdir -p "$stamps" "$database"
# Flags of the one compiler that the other does not know.
sed 's/ -ffloat-store//g; s/ -fno-tree-loop-distribute-patterns//g' "$build/compile_commands.json" >"$database/compile_commands.json"

if [[ $build == *win9x* ]]; then
  includes=/usr/lib/gcc/i686-w64-mingw32/12-win32/include/c++
  extra=(--extra-arg=--target=i686-w64-mingw32
    --extra-arg=-isystem"$includes" --extra-arg=-isystem"$includes/i686-w64-mingw32"
    --extra-arg=-isystem"$includes/backward" --extra-arg=-isystem/usr/i686-w64-mingw32/include)
  mapfile -t files < <(find src \( -path '*/win32/*' -o -path '*/runtime/*' \) -name '*.cpp' | sort)
else
  extra=(--extra-arg=-Wno-unknown-warning-option)
  mapfile -t files < <(find src -name '*.cpp' -not -path '*/win32/*' -not -path '*/runtime/*' | sort)
fi

# One digest of everything that a result can depend on besides the file: any header, the rules, the compiler's command.
common=$(cat .clang-tidy "$build/compile_commands.json" "${BASH_SOURCE[0]}" <(find src -name '*.h' -print0 | sort -z | xargs -0 cat) |
  sha256sum | cut -c1-20)

check() {
  local file=$1 stamp
  stamp=$stamps/$(printf '%s %s' "$common" "$(sha256sum "$file")" | sha256sum | cut -c1-32)
  [ -e "$stamp" ] && return 0
  if clang-tidy --quiet -p "$database" "${extra[@]}" "$file" 2>"$stamp.err"; then
    rm -f "$stamp.err"
    : >"$stamp"
    return 0
  fi
  grep -v 'warnings generated' "$stamp.err" >&2 || true
  rm -f "$stamp.err"
  return 1
}

status=0
running=0
for file in "${files[@]}"; do
  check "$file" &
  running=$((running + 1))
  if ((running >= $(nproc))); then
    wait -n || status=1
    running=$((running - 1))
  fi
done
while ((running > 0)); do
  wait -n || status=1
  running=$((running - 1))
done
echo "tidy: ${#files[@]} files looked at"
exit "$status"
