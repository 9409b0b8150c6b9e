#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the benchmarks and prints how the library compares with what people
# would use instead: the medians of 7 repetitions of one run.
# Usage: bench.sh [PRESET]   (default: bench; bench-qt6 for Qt 6)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh
preset=${1:-bench}

require_packages "${build_packages[@]}" "${qt6_packages[@]}" libbenchmark-dev nlohmann-json3-dev rapidjson-dev libsimdjson-dev python3
cmake --preset "$preset"
cmake --build --preset "$preset"
"build/$preset"/bench/velmolib_bench --benchmark_repetitions=7 --benchmark_min_time=0.1 \
    --benchmark_report_aggregates_only=true --benchmark_out_format=json \
    --benchmark_out="build/$preset/results.json" > /dev/null
python3 - "build/$preset/results.json" << 'PYTHON'
import json
import sys

rows = {}
for result in json.load(open(sys.argv[1]))["benchmarks"]:
    if result["aggregate_name"] == "median":
        work, road, *size = result["run_name"].split("/")
        unit = {"ns": 1, "us": 1e3, "ms": 1e6}[result["time_unit"]]
        rows.setdefault("/".join([work, *size]), {})[road] = (result["cpu_time"] * unit, result)

print(f"{'Work':30} {'library':>11} {'allocs':>7}  compared")
per_element = {}
for work, roads in rows.items():
    time, result = roads["library"]
    others = ", ".join(f"{road} {other / time:.2f} x" for road, (other, _) in roads.items()
                       if road != "library")
    if "per_element" in result:
        cost = result["per_element"] * 1e9
        name = work.split("/")[0]
        first = per_element.setdefault(name, cost)
        others = f"{cost:.1f} ns per element, {cost / first:.2f} x the smaller"
    allocations = f"{result['allocations']:.0f}" if "allocations" in result else ""
    print(f"{work:30} {time:8.1f} ns {allocations:>7}  {others}")
PYTHON
