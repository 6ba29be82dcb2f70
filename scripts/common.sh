# Shared by ./run and ./test: install what is missing from Debian, then configure and build.
# Sourced, not run.

QUORIN_PACKAGES=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev libqt6svg6 libxml2-dev libxslt1-dev libxml2-utils
  desktop-file-utils dpkg-dev groff-base
  libgtest-dev libgmock-dev libbenchmark-dev
  fonts-dejavu-core time bc
)

quorin_install() {
  local missing=()
  local p
  for p in "${QUORIN_PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
      missing+=("$p")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}" >&2
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

quorin_build() {
  local build_dir="${QUORIN_BUILD_DIR:-build}"
  if [ ! -f "$build_dir/build.ninja" ]; then
    cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=Release
  fi
  cmake --build "$build_dir" -j "$(nproc)"
}
