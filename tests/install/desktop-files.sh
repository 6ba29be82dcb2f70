#!/usr/bin/env bash
# The menu entry passes desktop-file-validate; the file type is well-formed XML and names the
# root element our rulebases have, and the glob matches their extension.
set -euo pipefail
data=$1
for tool in desktop-file-validate xmllint; do
  command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed"; exit 77; }
done
desktop-file-validate "$data/desktop/quorinadmin.desktop"
mime=$data/desktop/quorinadmin.xml
xmllint --noout "$mime"

field() { xmllint --xpath "string(//*[local-name()='$1']/@$2)" "$mime"; }
root=$(xmllint --xpath 'local-name(/*)' "$data/Sample.qrb")
[ "$(field root-XML localName)" = "$root" ] || { echo "root-XML is not <$root>"; exit 1; }
[ "$(field mime-type type)" = application/x-quorin-rulebase ] || { echo "wrong type"; exit 1; }
[ "$(field sub-class-of type)" = application/xml ] || { echo "not a kind of XML"; exit 1; }
# shellcheck disable=SC2254
case Sample.qrb in $(field glob pattern)) ;; *) echo "the glob misses .qrb"; exit 1 ;; esac
grep -qx 'MimeType=application/x-quorin-rulebase;' "$data/desktop/quorinadmin.desktop" \
  || { echo "the menu entry does not open rulebases"; exit 1; }
echo "desktop entry and file type are valid"
