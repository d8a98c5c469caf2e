# For the benchmarks to source. They keep what they measure in lines of a name and a number.
set -o pipefail

# turns ROUNDS DIRECTORY NAME...: runs the commands of these names, functions of the script,
# in turns, so that a busy moment of the machine falls on all alike, and prints the best
# time of each in milliseconds. The first round fills the caches and does not count. What
# a command writes is left in DIRECTORY/NAME.
turns() {
  local rounds=$1 directory=$2 round measured begun ended
  shift 2
  for ((round = 0; round <= rounds; ++round)); do
    for measured in "$@"; do
      begun=$(date +%s%N)
      "$measured" >"$directory/$measured" || return 1
      ended=$(date +%s%N)
      [ "$round" = 0 ] || echo "$measured $(((ended - begun) / 1000))e-3"
    done
  done | best
}

# The lowest number of each name, where names come more than once.
best() {
  awk '!($1 in low) || $2 + 0 < low[$1] { low[$1] = $2 + 0 } END { for (n in low) print n, low[n] }'
}
