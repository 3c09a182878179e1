#!/usr/bin/env bash
# Builds the benchmarks in the default preset, runs them with JSON output and writes the figures
# and the machine into docs/performance.md.
set -euo pipefail
cd "$(dirname "$0")/../.."

cmake --preset default > /dev/null
cmake --build --preset default -j2 --target orvanta_bench
./build/default/tests/bench/orvanta_bench --benchmark_out=build/default/bench.json \
  --benchmark_out_format=json > /dev/null
python3 tests/bench/performance_table.py build/default/bench.json docs/performance.md
echo "docs/performance.md updated from build/default/bench.json"
