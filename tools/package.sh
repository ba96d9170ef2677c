#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
# Builds the Debian package and the portable copy into build/package/packages, tries both out in systems of their own that hold
# nothing else, and writes what came of it to docs/install.md. Needs root or sudo for those systems; nothing is installed on this one
# but the packages that the scripts name.
# Use: tools/package.sh [OLDER.deb]. The upgrade is tried from that package; without it, from one made of the new one.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
need_packages "${run_packages[@]}" "${package_packages[@]}"
older=${1:-}
[ -z "$older" ] || [ -f "$older" ] || { echo "package.sh: there is no file '$older'; give an older Debian package, or nothing" >&2; exit 2; }

build_dir=build/package
packages=$build_dir/packages try=$build_dir/try report=docs/install.md
person="Maira O'Tessel"
day=(--at "2026-11-21 08:45")

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
mkdir -p "$try"

# ---- The report

steps=() failed=
# Carries out one step. Its output is its result, in one line; a step that fails is told and the others go on.
step() {
  local name=$1 result
  shift
  set +e  # a step ends at its first failing command, which an if would keep it from
  result=$(set -e; "$@" 2>"$try/step.log")
  local code=$?
  set -e
  if [ $code -eq 0 ]; then
    result=${result//$'\n'/; }
  else
    failed=yes
    result="**failed:** $(tail -n 1 "$try/step.log")"
    cat "$try/step.log" >&2
  fi
  steps+=("| $name | $result |")
  echo "$name: $result"
}

# Fails with a sentence.
no() { echo "$*" >&2; return 1; }

# ---- Systems to try things out in

# A Debian system with nothing but the named packages (parted by commas) and what they depend on, packed, and kept for the next time.
packed_system() {
  local kept
  kept=$try/$(sha256sum <<<"$1" | cut -c 1-12).tar
  if [ ! -f "$kept" ]; then
    echo "Fetching a Debian system with $1" >&2
    "${as_root[@]}" mmdebstrap --quiet --format=tar --variant=essential --include="$1" bookworm "$kept.part" >&2 && mv "$kept.part" "$kept"
  fi
  echo "$kept"
}

# Unpacks one anew, with a user who has an empty home.
new_system() {
  local kept
  kept=$(packed_system "$1")
  root=$try/root
  "${as_root[@]}" rm -rf "$root"
  mkdir -p "$root"
  "${as_root[@]}" tar -xf "$kept" -C "$root"
  "${as_root[@]}" mkdir -p "$root/home/user" "$root/tmp/.X11-unix"
  "${as_root[@]}" chown 1000:1000 "$root/home/user"
}

# Runs a command as root in that system. Mounts and processes end with it. With via=exec it takes the place of the calling shell.
inside() {
  ${via:-} "${as_root[@]}" unshare --mount --pid --fork --kill-child sh -c '
    mount -t proc proc "$0/proc"
    mount --bind /tmp/.X11-unix "$0/tmp/.X11-unix" 2>/dev/null || true
    if [ -e "$0/readonly" ]; then mount --bind "$0/readonly" "$0/readonly" && mount -o remount,ro,bind "$0/readonly"; fi
    exec chroot "$@"' "$root" "$@"
}
root_inside() { inside "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
user_inside() {
  inside --userspec=1000:1000 "$root" env -i HOME=/home/user PATH=/usr/bin:/bin LC_ALL=C.UTF-8 TZ=UTC DISPLAY="${display:-}" "$@"
}

# Every file of the system but those that only tell of installing.
system_files() {
  root_inside find / -xdev \( -path /proc -o -path /home -o -path /tmp -o -path /var/lib/dpkg -o -path /var/log -o -path /var/cache \) \
    -prune -o -print | sort
}
home_sums() { (cd "$root/home/user" && "${as_root[@]}" find . -type f -exec sha256sum {} + | sort -k 2); }
user_ephe() { echo "$root/home/user/.local/share/orvani/EPHE"; }

# Starts a command as the user under a display and waits for its window; keeps a picture of it.
window_opens() {
  local picture=$1 server program ids='' waited
  shift
  coproc xvfb { exec Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp -ac 2>/dev/null; }
  server=$xvfb_PID
  local display=
  read -r display <&"${xvfb[0]}"
  display=:$display
  via=exec user_inside "$@" >"$try/window.log" 2>&1 &
  program=$!
  for waited in $(seq 1 120); do
    ids=$(DISPLAY=$display xdotool search --onlyvisible --class orvani 2>/dev/null || true)
    [ -n "$ids" ] && break
    kill -0 "$program" 2>/dev/null || break
    sleep 0.5
  done
  local name=
  if [ -n "$ids" ]; then
    sleep 3  # the splash has gone by then
    ids=$(DISPLAY=$display xdotool search --onlyvisible --class orvani 2>/dev/null || true)
    for id in $ids; do name=$(DISPLAY=$display xdotool getwindowname "$id" 2>/dev/null) && [ -n "$name" ] && break; done
    DISPLAY=$display import -window root "$try/$picture.png"
  fi
  # The program ends with its display, and so does the system around it.
  kill "$server" 2>/dev/null || true
  wait "$server" "$program" 2>/dev/null || true
  [ -n "$name" ] || { cat "$try/window.log" >&2; no "no window of class orvani appeared ($waited looks)"; }
  ! grep -v 'XDG_RUNTIME_DIR\|connection broke' "$try/window.log" >&2 || no "the program complained"
  echo "$name"
}

# The figures of the sample person, from that copy's orvani-daily, and the ephemeris that answered.
figures_are_right() {
  local out part
  out=$(user_inside "$1" "${day[@]}")
  for part in "Anvik Telvar" "Shukla Dvadashi" "9:16 AM-10:50 AM" "14:31:25"; do
    grep -qF -- "$part" <<<"$out" || no "the day of the sample person has no '$part'"
  done
  user_inside "$1" "${day[@]}" --pdf /tmp/day.pdf
  [ "$(head -c 5 "$root/tmp/day.pdf")" = "%PDF-" ] || no "the report is no PDF"
  user_inside "$1" --version | sed -n 's/.*positions from: //p'
}

# A person and a residence as the program would store them: copies of the sample's rows under another name.
add_person() {
  "${as_root[@]}" python3 - "$1/COMMON/RECOS.Dat" "$1/COMMON/Daily.dat" "$person" <<'PYTHON'
import sqlite3, sys
for path in sys.argv[1:3]:
    store = sqlite3.connect(path)
    names = [row[1] for row in store.execute("PRAGMA table_info(Person)") if row[5] == 0]
    rows = store.execute(f"SELECT {','.join(names)} FROM Person LIMIT 1").fetchall()
    at = [name.lower() for name in names].index("name")
    for row in rows:
        row = list(row)
        row[at] = sys.argv[3]
        store.execute(f"INSERT INTO Person ({','.join(names)}) VALUES ({','.join('?' * len(names))})", row)
    store.commit()
PYTHON
}
has_person() {
  user_inside "$1" --list | grep -qxF "$person" || no "$person is not in the list"
  user_inside "$1" "${day[@]}" --person "$person" | grep -qF "14:31:25" || no "the chart of $person is not the one of the stored birth"
}

# ---- The steps

made() { echo "\`$(basename "$1")\`, $(($(stat -c %s "$1") / 1024)) KiB"; }

desktop_entry() { desktop-file-validate packaging/orvani.desktop >&2 && echo "valid"; }
metainfo() { appstreamcli validate --no-net --pedantic "$build_dir"/packaging/release/*.metainfo.xml >&2 && echo "valid"; }
man_pages() {
  local page said
  for page in "$build_dir"/packaging/release/man/*.gz; do
    said=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$said" ] || no "$said"
  done
  echo "no warning"
}

package_checker() {
  local tags kind said=() count
  tags=$(lintian --allow-root --display-info --tag-display-limit 0 "$deb" 2>/dev/null || true)
  for kind in E W I; do
    count=$(grep -c "^$kind: " <<<"$tags" || true)
    case $kind in E) said+=("errors: $count") ;; W) said+=("warnings: $count") ;; I) said+=("remarks: $count") ;; esac
  done
  sed -n 's/^\([EWI]\): [^:]*: \(.*\)/\1 \2/p' <<<"$tags" | sort >"$try/lintian"
  ! grep -q '^E: ' <<<"$tags" || no "${said[*]}; $(grep '^E: ' <<<"$tags" | head -n 1)"
  local IFS=,
  echo "${said[*]}" | sed 's/,/, /g'
}

# Why a remark of lintian is left as it is.
left_because() {
  case $1 in
    *arch-dep-package-has-big-usr-share*) echo "one package is plainer to its users than a program and its data apart" ;;
    *binary-has-unneeded-section*) echo "some bytes that name the compiler" ;;
    *documentation-outside-usr-share-doc*) echo "the page that F1 shows, which the program finds among its data" ;;
    *) echo "**not looked at yet**" ;;
  esac
}

# An older package made of the new one: lower version, one text of its own, a file that the new one no longer has.
older_package() {
  local tree=$try/older
  rm -rf "$tree"
  dpkg-deb -R "$deb" "$tree"
  sed -i 's/^Version: .*/Version: 0.9.0-1/' "$tree/DEBIAN/control"
  python3 - "$tree/usr/share/orvani/EPHE/ENGLISH/ENGLISH.DAT" <<'PYTHON'
import sqlite3, sys
store = sqlite3.connect(sys.argv[1])
store.execute("CREATE TABLE Older (Word TEXT)")
store.commit()
PYTHON
  echo "0.9.0 older" >"$tree/usr/share/orvani/EPHE/SEED"
  echo "gone in the next version" >"$tree/usr/share/doc/orvani/older.txt"
  dpkg-deb --root-owner-group -b "$tree" "$try/older.deb" >/dev/null
  older=$try/older.deb
}

install_package() {
  "${as_root[@]}" cp "$1" "$root/tmp/orvani.deb"
  root_inside dpkg -i /tmp/orvani.deb >&2
  "${as_root[@]}" rm "$root/tmp/orvani.deb"
}
installed_version() { root_inside dpkg-query -W -f='${Version}' orvani; }

older_works() {
  install_package "$older"
  figures_are_right orvani-daily >/dev/null
  add_person "$(user_ephe)"
  has_person orvani-daily
  echo "$(installed_version) in a system that holds nothing but its dependencies; $person added"
}
menu_start() {
  local line settings=$root/home/user/.config/orvani
  if [ "$2" = answered ]; then
    "${as_root[@]}" mkdir -p "$settings"
    printf '[Settings]\nDoneSetup=True\n' | "${as_root[@]}" tee "$settings/orvani.conf" >/dev/null
    "${as_root[@]}" chown -R 1000:1000 "$root/home/user/.config"
  fi
  read -ra line <<<"$(sed -n 's/^Exec=//p' "$root/usr/share/applications/orvani.desktop")"
  echo "\`${line[*]}\` opens the window \"$(window_opens "$1" "${line[@]}")\""
}
upgrade() {
  cmp -s "$(user_ephe)/ENGLISH/ENGLISH.DAT" "$root/usr/share/orvani/EPHE/ENGLISH/ENGLISH.DAT" || no "the older texts did not reach the user"
  install_package "$deb"
  [ ! -e "$root/usr/share/doc/orvani/older.txt" ] || no "a file of the older package stayed"
  has_person orvani-daily
  cmp "$(user_ephe)/ENGLISH/ENGLISH.DAT" "$root/usr/share/orvani/EPHE/ENGLISH/ENGLISH.DAT" >&2 || no "the texts were not renewed"
  cmp "$(user_ephe)/SEED" "$root/usr/share/orvani/EPHE/SEED" >&2 || no "the mark of the data was not renewed"
  echo "to $(installed_version): $person is still there, the texts are the new ones"
}
remove() {
  local sums
  sums=$(home_sums)
  root_inside dpkg "$1" orvani >&2
  system_files >"$try/files.after"
  diff "$try/files.before" "$try/files.after" >"$try/files.diff" || no "left over or missing: $(grep '^[<>]' "$try/files.diff" | head -n 5 | tr '\n' ' ')"
  [ "$sums" = "$(home_sums)" ] || no "a file in the user's home was touched"
  ! root_inside dpkg-query -W -f='${Status}' orvani >"$try/status" 2>/dev/null || no "dpkg still tells of it: $(cat "$try/status")"
  echo "nothing left in the system, the $(wc -l <<<"$sums") files of the home untouched"
}
install_and_remove() {
  install_package "$deb"
  remove --remove
}
installed_figures() {
  figures_are_right orvani-daily | sed 's/^/sample day and PDF; positions from: /'
}

portable_runs() {
  "${as_root[@]}" tar -xf "$tar" -C "$root/$1" --strip-components=1 --no-same-owner
  [ "$1" = readonly ] || "${as_root[@]}" chown -R 1000:1000 "$root/$1"
  figures_are_right "/$1/orvani-daily" | sed 's/^/positions from: /'
  add_person "$2"
  has_person "/$1/orvani-daily"
  echo "window \"$(window_opens "portable-$1" "/$1/orvani")\""
  [ -f "$2/SEED" ] || no "there is no EPHE where it belongs"
}
portable_writable() {
  "${as_root[@]}" mkdir "$root/copy"
  portable_runs copy "$root/copy/EPHE"
  [ ! -e "$(user_ephe)" ] || no "it made a folder in the home"
  echo "EPHE lies beside the program"
}
portable_again() {
  echo older | "${as_root[@]}" tee "$root/copy/EPHE/SEED" "$root/copy/EPHE/HELP/english.html" >/dev/null
  "${as_root[@]}" tar -xf "$tar" -C "$root/copy" --strip-components=1 --no-same-owner
  "${as_root[@]}" chown -R 1000:1000 "$root/copy"
  has_person /copy/orvani-daily
  cmp "$root/copy/EPHE/HELP/english.html" "$root/copy/share/orvani/EPHE/HELP/english.html" >&2 || no "the texts were not renewed"
  echo "$person is still there, the texts are renewed"
}
portable_read_only() {
  "${as_root[@]}" mkdir "$root/readonly"
  portable_runs readonly "$(user_ephe)"
  [ ! -e "$root/readonly/EPHE" ] || no "it wrote into a read-only place"
  echo "EPHE lies in the user's data folder"
}

mkdir -p build
configure
build all
rm -rf "$packages"
cpack --config "$build_dir/CPackConfig.cmake" -B "$PWD/$packages" >"$try/cpack.log" 2>&1 || { cat "$try/cpack.log" >&2; exit 1; }
deb=$(ls "$packages"/*.deb) tar=$(ls "$packages"/*.tar.gz)

step "Debian package" made "$deb"
step "Portable copy" made "$tar"
step "Desktop entry (desktop-file-validate)" desktop_entry
step "Metainfo (appstreamcli)" metainfo
step "Man pages (man --warnings)" man_pages
step "Package (lintian)" package_checker

# Alternatives: the first one.
depends=$(dpkg-deb -f "$deb" Depends | sed 's/([^)]*)//g; s/|[^,]*//g; s/ //g')
new_system "$depends"
system_files >"$try/files.before"
[ -n "$older" ] || older_package
step "An older package installs" older_works
step "It starts from the menu, for the first time" menu_start menu-older new
step "Upgrade" upgrade
step "The new one calculates" installed_figures
step "The new one starts from the menu" menu_start menu-new answered
step "Purge" remove --purge
step "Install and remove" install_and_remove

desktop=libgl1,libegl1,libopengl0,libglx0,libx11-6,libx11-xcb1,libxcb1,libsm6,libice6,libfontconfig1,libfreetype6,libexpat1,zlib1g
desktop+=,libdbus-1-3,libcups2,libudev1,libstdc++6,libuuid1,libcom-err2,fonts-liberation
new_system "$desktop"
step "Portable copy in a home of its own, no Qt installed" portable_writable
step "The same unpacked over itself" portable_again
new_system "$desktop"
step "Portable copy in a read-only place" portable_read_only
"${as_root[@]}" rm -rf "$try/root"

{
  echo "# Installing, tried out"
  echo
  echo "Made by one command, which builds the Debian package and the portable copy and tries both in fresh Debian 12 systems with an empty"
  echo "home, the package's with its dependencies and nothing else:"
  echo
  printf '```sh\ntools/package.sh\n```\n\n'
  echo "| Step | Result |"
  echo "|---|---|"
  printf '%s\n' "${steps[@]}"
  echo
  if [ -s "$try/lintian" ]; then
    echo "What lintian says (E error, W warning, I remark), and why it is left so:"
    echo
    while read -r kind tag where; do echo "- $kind $tag${where:+ \`$where\`}: $(left_because "$tag")"; done <"$try/lintian"
  else
    echo "lintian says nothing more."
  fi
} >"$report"
[ -z "$failed" ] || { echo "Something failed; $report tells what." >&2; exit 1; }
echo "All is well; $report tells the steps, and $packages holds the packages."
