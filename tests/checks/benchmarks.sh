# What the benchmarks measure takes turns, by the one helper of their language, and
# building them builds nothing else that lasts.
set -u
cd "$(dirname "$0")/../.." || exit 1
failed=0
if grep -nE 'date \+|steady_clock|QueryPerformanceCounter|GetTickCount' bench/* | grep -v '^bench/turns\.'; then
  echo "bench/: times are taken by bench/turns.sh and bench/turns.h"
  failed=1
fi
folder=build/check-bench
cmake --preset bench -B "$folder" >/dev/null || exit 1
if ninja -C "$folder" -t targets all | grep -E '_tests|doctest|workbench_core' | head -n 3 | grep .; then
  echo "the preset \"bench\" builds the tests"
  failed=1
fi
exit "$failed"
