#!/usr/bin/env bash
# tools/fuzz/fuzze.sh [SECONDES]: builds the libFuzzer programs (Clang, build/fuzz) and runs each for so long
# (default 600), from the committed corpus and the delivered data. What was found stays in build/fuzz/corpus, what
# breaks a reader in build/fuzz/trouve.
# tools/fuzz/fuzze.sh minimise: takes from build/fuzz/corpus into the committed corpus what reaches code that
# neither that nor the delivered data and the tests' scenarios reach.
set -euo pipefail
cd "$(dirname "$0")/../.."
secondes=${1:-600}
cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug '-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1' \
    -DVELMORIA_SANITIZERS=address,undefined -DVELMORIA_FUZZ=ON >/dev/null
cibles=(reglages notes almanach catalogues liste image date scenario)
cmake --build build/fuzz -j2 --target "${cibles[@]/#/fuzz_}"
mkdir -p build/fuzz/trouve
for cible in "${cibles[@]}"; do
    programme=build/fuzz/tools/fuzz/fuzz_$cible
    echo "== $cible"
    depart=build/fuzz/depart/$cible
    mkdir -p "$depart" "build/fuzz/corpus/$cible"
    longueur=4096
    case $cible in
    reglages) for f in data/*.ini; do { printf '%s' 001234567; cat "$f"; } >"$depart/${f##*/}"; done ;;
    notes) cp data/notes.txt "$depart" ;;
    almanach) cp data/date/2001/janvier/sg0.txt "$depart" ;;
    catalogues) # the tables have up to 1101 entries
        for f in data/*.cat; do head -n 30 "$f" >"$depart/${f##*/}"; done
        longueur=16384 ;;
    liste) cp data/img/liste.txt "$depart" ;;
    image) find data -name '*.gif' -o -name '*.jpg' | while read -r f; do head -c 1000 "$f" >"$depart/${f##*/}"; done ;;
    date) printf '2001-08-15 22:00:00.500' >"$depart/date" ;;
    scenario)
        for f in tests/scenarios/*.scn; do
            for e in '' $(grep -oP '^# essai \K\w+' "$f"); do
                python3 tests/scenarios/joue.py - "$f" $e >"$depart/${f##*/}$e"
            done
        done
        ;;
    esac
    if [ "$secondes" = minimise ]; then
        tri=build/fuzz/tri/$cible
        rm -rf "$tri"
        mkdir -p "$tri"
        cp "$depart"/* "tools/fuzz/corpus/$cible"/* "$tri"
        "$programme" -set_cover_merge=1 -use_counters=0 -max_len=2000 "$tri" "build/fuzz/corpus/$cible" 2>&1 | grep 'new files'
        find "$tri" -regextype egrep -regex '.*/[0-9a-f]{40}' -exec cp -t "tools/fuzz/corpus/$cible" {} +
        continue
    fi
    "$programme" -max_total_time="$secondes" -max_len=$longueur -timeout=20 -rss_limit_mb=4096 \
        -print_final_stats=1 -verbosity=0 "-artifact_prefix=build/fuzz/trouve/$cible-" \
        "build/fuzz/corpus/$cible" "tools/fuzz/corpus/$cible" "$depart"
done
