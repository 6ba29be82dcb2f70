#!/usr/bin/env bash
# The manual page written at build time formats without a warning and has a section for every
# command qrbtool lists.
set -euo pipefail
page=$1
qrbtool=$2
command -v groff >/dev/null || { echo "SKIP: groff is not installed"; exit 77; }
warnings=$(groff -man -ww -z "$page" 2>&1)
[ -z "$warnings" ] || { echo "$warnings"; exit 1; }
commands=$("$qrbtool" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
[ -n "$commands" ] || { echo "qrbtool --help lists no command"; exit 1; }
for command in $commands; do
  grep -q "^\.SS \"qrbtool $command " "$page" || { echo "no section on $command"; exit 1; }
done
grep -q "^\.TH QRBTOOL 1 .*\"$("$qrbtool" --version)\"" "$page" || { echo "no version"; exit 1; }
echo "manual page formats cleanly"
