#!/usr/bin/env bash
# tools/fuzz/fuzze.sh [SECONDS]: feeds each reader with arbitrary bytes for so long (default 600), starting
# from the delivered data, the tests' scenarios and tools/fuzz/corpus. What was found stays in build/fuzz/corpus, what
# breaks a reader in build/fuzz/trouve; status 1 if anything did.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug '-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1' \
    -DVELMORIA_SANITIZERS=address,undefined -DVELMORIA_FUZZ=ON -DVELMORIA_TESTS=OFF >/dev/null
cmake --build build/fuzz --target fuzz -j "$(nproc)" >/dev/null
statut=0
for cible in reglages notes catalogues scenario planetarium; do
    depart=build/fuzz/depart/$cible
    mkdir -p "$depart" "build/fuzz/corpus/$cible" build/fuzz/trouve
    find tools/fuzz/corpus -name "$cible-*" -exec cp -t "$depart" {} +
    case $cible in
    reglages) for f in data/*.ini; do { printf 001234567 && cat "$f"; } >"$depart/${f##*/}"; done ;;
    notes) cp data/notes.txt "$depart" ;;
    catalogues) for f in data/*.cat; do head -n 30 "$f" >"$depart/${f##*/}"; done ;;
    planetarium) sed -n 's/^.*planetarium //p' tests/scenarios/planetarium.scn >"$depart/commandes" ;;
    scenario) cp tests/scenarios/*.scn "$depart" ;;
    esac
    CIBLE=$cible build/fuzz/tools/fuzz/fuzz -max_total_time="${1:-600}" -max_len=16384 -timeout=20 -rss_limit_mb=4096 \
        -verbosity=0 "-artifact_prefix=build/fuzz/trouve/$cible-" "build/fuzz/corpus/$cible" "$depart" || statut=1
done
exit $statut
