#!/usr/bin/env bash
# Fails, naming them, when tracked C++ files are not as clang-format (.clang-format) writes
# them. With --fix, formats them instead.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.cpp' '*.h')
if [ "${1:-}" = "--fix" ]; then
  clang-format -i "${files[@]}"
  exit 0
fi
unformatted=()
for f in "${files[@]}"; do
  if ! clang-format --dry-run --Werror "$f" >/dev/null 2>&1; then
    unformatted+=("$f")
  fi
done
if [ ${#unformatted[@]} -gt 0 ]; then
  echo "Not formatted as .clang-format says ($(clang-format --version)):" >&2
  printf '  %s\n' "${unformatted[@]}" >&2
  echo "Run scripts/check-format.sh --fix." >&2
  exit 1
fi
