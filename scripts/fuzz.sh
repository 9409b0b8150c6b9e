#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the fuzzers with clang and runs each for a number of seconds, two
# at a time, from the seeds in fuzz/corpus. What they find on the way is kept in build/fuzz/found; an
# input that breaks a property is named and ends the script with an error.
# Usage: fuzz.sh [SECONDS]   (default: 60)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" clang libclang-rt-14-dev
cmake --preset fuzz
cmake --build --preset fuzz

seconds=${1:-60}
run()
{
    local target=$1 seconds=$2 found=build/fuzz/found
    mkdir -p "$found/$target"
    if ! build/fuzz/fuzz/fuzz_"$target" -max_total_time="$seconds" -max_len=8192 -timeout=10 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$found/$target-" \
        "$found/$target" "fuzz/corpus/$target" > "$found/$target.log" 2>&1; then
        grep -E 'does not hold|ERROR|runtime error|Test unit written' "$found/$target.log"
        echo "$target: broken, see $found/$target.log"
        return 1
    fi
    echo "$target: $(grep -oE 'cov: [0-9]+' "$found/$target.log" | tail -n 1)," \
        "$(grep -oE 'number_of_executed_units: [0-9]+' "$found/$target.log")"
}
export -f run
printf '%s\n' fuzz/corpus/* | xargs -n 1 basename \
    | xargs -P 2 -I {} bash -c "run {} $seconds"
