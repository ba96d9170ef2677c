#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
# Runs each fuzz target for some time, as many at once as there are processors, and writes what they did into docs/faults.md:
#   tools/fuzz.sh [SECONDS [TARGET...]]     600 seconds and all targets when left out
# What a target has learnt stays in build/fuzz/corpus, so that a later run goes on from there. An input that is a finding lies in
# build/fuzz/findings; mended, it belongs into tests/fuzz/found, where every later test run tries it. Ends with 1 on a finding.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
seconds=${1:-600}
shift || true
[[ $seconds =~ ^[1-9][0-9]*$ ]] || { echo "fuzz.sh: '$seconds' is no number of seconds; give one, as in tools/fuzz.sh 600" >&2; exit 2; }
all=(persons_csv persons_json gendat_ini user_settings persons_store residences_store languages_store texts_store command_line)
targets=("$@")
[ $# -gt 0 ] || targets=("${all[@]}")
for target in "${targets[@]}"; do
  [[ " ${all[*]} " == *" $target "* ]] || { echo "fuzz.sh: '$target' is no target; the targets are ${all[*]}" >&2; exit 2; }
done
need_packages "${run_packages[@]}" "${test_packages[@]}" "${fuzz_packages[@]}"
build_dir=build/fuzz
mkdir -p "$build_dir"
cmake --preset fuzz >build/fuzz.log 2>&1 || { cat build/fuzz.log >&2; exit 1; }
build fuzzers

declare -A longest=([persons_csv]=4096 [persons_json]=4096 [gendat_ini]=2048 [user_settings]=2048 [persons_store]=16384
  [residences_store]=8192 [languages_store]=8192 [texts_store]=131072 [command_line]=512)
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
mkdir -p "$build_dir"/{findings,rows,logs}

# One target for its time, and its row of the table. Leaves the name of a finding in findings/TARGET.open.
try_target() {
  local target=$1 inputs=() words=() result=none began=$SECONDS log=$build_dir/logs/$1
  for folder in tests/fuzz/seeds/$target tests/fuzz/found/$target "$build_dir/fuzz-data/seeds/$target"; do
    if [ -d "$folder" ]; then inputs+=("$folder"); fi
  done
  if [ -f "tests/fuzz/words/$target.dict" ]; then words=("-dict=tests/fuzz/words/$target.dict"); fi
  mkdir -p "$build_dir/corpus/$target"
  rm -f "$build_dir/findings/$target.open"
  echo "Trying $target for $seconds s"
  # Leaks are looked for where the whole suite runs under the sanitizers: here each look would take longer than the input.
  nice -n 19 "$build_dir/bin/fuzz_$target" -max_total_time="$seconds" -max_len="${longest[$target]}" -timeout=120 -len_control=0 \
    -use_value_profile=1 -detect_leaks=0 -rss_limit_mb=4096 -close_fd_mask=1 -print_final_stats=1 -artifact_prefix="$build_dir/findings/$target-" "${words[@]}" \
    "$build_dir/corpus/$target" "${inputs[@]}" >"$log" 2>&1 || {
    result=$(sed -n 's/.*Test unit written to //p' "$log" | tail -1)
    touch "$build_dir/findings/$target.open"
    tail -40 "$log" >&2
  }
  local edges reached runs
  edges=$(sed -nE 's/.*INFO: Loaded .*\(([0-9]+) inline.*/\1/p' "$log" | head -1)
  reached=$(grep -aoE 'cov: [0-9]+' "$log" | tail -1 | cut -d' ' -f2)
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  echo "| \`$target\` | $(find "${inputs[@]}" -type f | wc -l) | $((SECONDS - began)) s | ${runs:-0} | ${reached:-0} of ${edges:-0} | ${result##*/} |" \
    >"$build_dir/rows/$target"
}

for target in "${targets[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do wait -n || true; done
  try_target "$target" &
done
wait
{
  echo '| Target | First inputs | Time | Inputs tried | Places of the code reached | Finding open |'
  echo '|---|---|---|---|---|---|'
  for target in "${all[@]}"; do cat "$build_dir/rows/$target" 2>/dev/null || true; done
} | put_report docs/faults.md fuzz
for target in "${targets[@]}"; do
  [ ! -e "$build_dir/findings/$target.open" ] || exit 1
done
