#!/usr/bin/env bash
# tools/singe/singe.sh [SECONDS]: one life of the monkey after another for so long (default 600), under the sanitizers,
# from start values that no run before had. What a life that broke a rule played stays in build/singe.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake --preset sanitizers >/dev/null
cmake --build --preset sanitizers --target essais_singe -j "$(nproc)" >/dev/null
mkdir -p build/singe
fautes=0 premiere=$(date +%s)
for ((n = 0; SECONDS < ${1:-600}; ++n)); do
    vie=build/singe/$((premiere + n)).scn
    timeout 120 build/sanitizers/tools/singe/essais_singe $((premiere + n)) >"$vie" 2>&1 && rm "$vie" && continue
    fautes=$((fautes + 1))
    echo "$vie: $(tail -n 1 "$vie")"
done
echo "$n lives, $fautes faults"
[ $fautes -eq 0 ]
