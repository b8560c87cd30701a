#!/usr/bin/env bash
# Fails if a source file is not formatted according to .clang-format.   --fix formats it instead.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
mode=(--dry-run -Werror)
if [ "${1:-}" = --fix ]; then mode=(-i); fi
mapfile -t files < <(find src companions tests bench tools -name '*.h' -o -name '*.cpp' | sort)
clang-format "${mode[@]}" "${files[@]}"
echo "format: ${#files[@]} files checked"
