#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
# Builds the benchmarks, runs them all, and writes what they measured beside what is wanted into docs/bench.md. Takes two to four
# minutes; what else runs on the machine meanwhile shows in the figures.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
[ $# -eq 0 ] || { echo "bench.sh: there is nothing to choose; call it as tools/bench.sh" >&2; exit 2; }
need_packages "${run_packages[@]}" "${test_packages[@]}"
build_dir=build/bench
mkdir -p build
cmake --preset bench >build/bench.log 2>&1 || { cat build/bench.log >&2; exit 1; }
build orvani-bench orvani-daily ephe

if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT
# Runs the benchmarks of a name into a file of results.
measure() {
  local file=$1
  shift
  "$@" --benchmark_out="$results/$file.json" >"$results/log" 2>&1 || { cat "$results/log" >&2; exit 1; }
}
bench=$build_dir/bin/orvani-bench
echo "Measuring times"
QT_QPA_PLATFORM=offscreen measure times "$bench" --benchmark_filter=-WindowMemory --benchmark_repetitions=5 \
  --benchmark_min_time=0.2 --benchmark_enable_random_interleaving=true
echo "Measuring memory"
QT_QPA_PLATFORM=offscreen measure offscreen "$bench" --benchmark_filter=WindowMemory
QT_QPA_PLATFORM=xcb measure xcb xvfb-run -a -s "-screen 0 1600x1200x24" "$bench" --benchmark_filter=WindowMemory
/usr/bin/python3 tools/benchtable.py "$results" | put_report docs/bench.md bench
grep -F 'missed by' docs/bench.md || echo "Everything wanted is met; the table is in docs/bench.md"
