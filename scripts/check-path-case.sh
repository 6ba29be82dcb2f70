#!/usr/bin/env bash
# Fails when two tracked paths differ only in case: a checkout on a file system that ignores
# case (Windows, macOS) keeps only one of them. Folders count too, since a file "a/X.h" and a
# file "A/y.h" land in one folder there.
set -euo pipefail
cd "$(dirname "$0")/.."
clashes=$(git ls-files -z \
  | LC_ALL=C awk 'BEGIN { RS = "\0" } {
      path = $0
      print path
      while (sub(/\/[^\/]*$/, "", path)) print path
    }' \
  | LC_ALL=C sort -u \
  | LC_ALL=C awk '{ key = tolower($0); if (key in seen) print seen[key] "  and  " $0; else seen[key] = $0 }')
if [ -n "$clashes" ]; then
  echo "Tracked paths that differ only in case (a case-insensitive checkout loses one):" >&2
  echo "$clashes" >&2
  exit 1
fi
