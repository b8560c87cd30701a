#!/usr/bin/env bash
# Fails when a source file is not formatted as .clang-format says.   --fix formats instead.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
mode=(--dry-run -Werror)
if [ "${1:-}" = --fix ]; then mode=(-i); fi
mapfile -t files < <(find src companions tests bench tools -name '*.h' -o -name '*.cpp' | sort)
clang-format "${mode[@]}" "${files[@]}"
echo "format: ${#files[@]} files looked at"
