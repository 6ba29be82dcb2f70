#!/usr/bin/env bash
# Makes the Debian package from the build folder as it is, unpacks it into a temporary root and
# runs both programs from there, as they run once installed: the sample is found through the
# shared data folders, settings and the log go to a home of their own.
# Usage: package.sh BUILD_DIR VERSION
set -euo pipefail
build=$1
version=$2
command -v dpkg-deb >/dev/null || { echo "SKIP: dpkg-deb is not installed"; exit 77; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

if ! cpack -G DEB -B "$work/package" --config "$build/CPackConfig.cmake" >"$work/cpack.log" 2>&1; then
  cat "$work/cpack.log"
  fail "cpack -G DEB"
fi
deb=$(echo "$work"/package/quorinadmin_*.deb)
[ -f "$deb" ] || fail "no package in $(ls "$work/package")"
depends=$(dpkg-deb -f "$deb" Depends)
for runtime in libqt6core6 libqt6gui6 libqt6widgets6 libqt6svg6 qt6-qpa-plugins libxml2 libxslt1.1; do
  grep -q "\b$runtime\b" <<<"$depends" || fail "Depends lacks $runtime: $depends"
done

root=$work/root
dpkg-deb -x "$deb" "$root"
share=$root/usr/share
sample=$share/quorinadmin/Sample.qrb
for file in usr/bin/QuorinAdmin usr/bin/qrbtool usr/share/quorinadmin/Sample.qrb \
    usr/share/applications/quorinadmin.desktop usr/share/mime/packages/quorinadmin.xml \
    usr/share/icons/hicolor/scalable/apps/quorinadmin.svg \
    usr/share/bash-completion/completions/qrbtool; do
  [ -f "$root/$file" ] || fail "the package lacks /$file"
done
for size in 16 22 24 32 48 64 128 256; do
  [ -f "$share/icons/hicolor/${size}x${size}/apps/quorinadmin.png" ] || fail "no ${size}px icon"
done
ls "$share"/man/man1/qrbtool.1* >/dev/null 2>&1 || fail "the package lacks the manual page"

# A home of its own, and the installed root's data folder as the only shared one.
export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data
export XDG_DATA_DIRS=$share QT_QPA_PLATFORM=offscreen
mkdir -p "$HOME"
cd "$work"

qrbtool=$root/usr/bin/qrbtool
[ "$("$qrbtool" --version)" = "qrbtool $version" ] || fail "qrbtool --version: $("$qrbtool" --version)"
"$qrbtool" scripts "$sample" -o "$work/QuorinScripts.qrs" || fail "qrbtool scripts on the sample"
grep -q "^Sub " "$work/QuorinScripts.qrs" || fail "the condition script file holds no procedure"

# First start, with no rulebase named: the program opens the installed sample by itself, so its
# window looks as when the sample is named.
admin=$root/usr/bin/QuorinAdmin
timeout 60 "$admin" --screenshot "$work/first.png" || fail "QuorinAdmin on its first start"
timeout 60 "$admin" --screenshot "$work/named.png" "$sample" || fail "QuorinAdmin on the sample"
[ -s "$work/named.png" ] || fail "no screenshot"
cmp -s "$work/first.png" "$work/named.png" || fail "the first start did not open the installed sample"

# The shell completion offers the commands, a command's options and an option's values.
complete_words() {
  PATH=$root/usr/bin:$PATH bash -c '
    . "$1"; shift
    COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
    _qrbtool qrbtool "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf "%s\n" "${COMPREPLY[@]}" | sort | tr "\n" " "' \
    _ "$share/bash-completion/completions/qrbtool" "$@"
}
[ "$(complete_words qrbtool s)" = "scripts stats " ] || fail "completing a command: $(complete_words qrbtool s)"
[ "$(complete_words qrbtool check --format '')" = "json text " ] || fail "completing --format"
[ "$(complete_words qrbtool doc --o)" = "--organisation --output " ] || fail "completing doc's options"

echo "the package installs and both programs run from it"
