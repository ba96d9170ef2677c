# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
# Sourced by run, test and the scripts of tools: installs what is missing, configures once, builds.

build_dir=build/release

# What building and running need.
run_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6sql6-sqlite libswe-dev swe-basic-data python3-fonttools
  fonts-liberation shared-mime-info hicolor-icon-theme)
# What the tests need beside them.
test_packages=(libgtest-dev libbenchmark-dev xvfb xauth hunspell hunspell-en-us poppler-utils)
# What fuzzing needs beside them.
fuzz_packages=(clang libclang-rt-dev)
# What making and trying out the packages needs.
package_packages=(dpkg-dev lintian desktop-file-utils appstream man-db mmdebstrap xvfb xdotool imagemagick)

# Installs those of the named packages that are missing, as root or with sudo.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
  fi
  echo "Installing with apt-get: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    cat "$log" >&2
    echo "Installing failed; see above." >&2
    exit 1
  fi
  rm -f "$log"
}

# Configures the build folder, which bears the name of its preset, once, and again when an option (NAME=VALUE) is not what it was
# configured with.
configure() {
  local option fresh=yes definitions=()
  [ -f "$build_dir/build.ninja" ] || fresh=
  for option in "$@"; do
    definitions+=("-D$option")
    grep -qE "^${option%%=*}:[A-Z]+=${option#*=}$" "$build_dir/CMakeCache.txt" 2>/dev/null || fresh=
  done
  [ -n "$fresh" ] && return 0
  echo "Configuring $build_dir"
  cmake --preset "${build_dir##*/}" "${definitions[@]}" >"$build_dir.log" 2>&1 || { cat "$build_dir.log" >&2; exit 1; }
}

# Builds the named targets; says so only when it takes longer than a look.
build() {
  local log ninja_pid teller_pid
  log=$(mktemp)
  ninja -C "$build_dir" "$@" >"$log" 2>&1 &
  ninja_pid=$!
  { sleep 1; echo "Building"; } &
  teller_pid=$!
  local failed=
  wait "$ninja_pid" || failed=yes
  kill "$teller_pid" 2>/dev/null || true
  wait "$teller_pid" 2>/dev/null || true
  if [ -n "$failed" ]; then
    cat "$log" >&2
    exit 1
  fi
  rm -f "$log"
}

# Puts the text from stdin into a file between the marks <!-- NAME --> and <!-- end of NAME -->.
put_report() {
  local text
  text=$(mktemp)
  cat >"$text"
  sed -i -e "/<!-- $2 -->/,/<!-- end of $2 -->/{//!d}" -e "/<!-- $2 -->/r $text" "$1"
  rm -f "$text"
}
