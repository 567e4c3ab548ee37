#!/usr/bin/env bash
# tools/couverture.sh [REGEX [SOURCE...]]: builds with Clang's line counters (build/couverture), runs the tests whose
# names match REGEX (default: all), and prints every line of src (or of the SOURCEs named) that none of them reached,
# then the totals. Counters are kept in mapped files, so a program that ends at once still leaves them.
set -euo pipefail
cd "$(dirname "$0")/.."
filtre=${1:-.}
shift || true
tools/installe.sh couverture
d=build/couverture
cmake --preset couverture >/dev/null
cmake --build --preset couverture -j "$(nproc)" >/dev/null
rm -rf $d/compteurs && mkdir -p $d/compteurs
LLVM_PROFILE_FILE="$PWD/$d/compteurs/%m%c.profraw" ctest --preset couverture -j "$(nproc)" -R "$filtre" | tail -n 3
llvm-profdata merge -sparse $d/compteurs/*.profraw -o $d/tout.profdata
mapfile -t programmes < <(find $d/bin $d/tests -type f -executable ! -name '*.so*' ! -path '*CMakeFiles*' 2>/dev/null)
sources=("$@")
[ ${#sources[@]} -gt 0 ] || sources=(src)
llvm-cov export -format=lcov -instr-profile=$d/tout.profdata "${programmes[0]}" "${programmes[@]/#/-object=}" "${sources[@]}" >$d/lignes.info 2>/dev/null
python3 - $d/lignes.info <<'FIN'
import os, sys

lignes, source = {}, None
for l in open(sys.argv[1]):
    if l.startswith("SF:"):
        source = os.path.relpath(l[3:].strip())
    elif l.startswith("DA:"):
        n, fois = l[3:].split(",")[:2]
        cle = (source, int(n))
        lignes[cle] = lignes.get(cle, 0) + int(fois)
textes = {s: open(s).read().split("\n") for s in {s for s, _ in lignes}}
for (s, n), fois in sorted(lignes.items()):
    if fois == 0 and textes[s][n - 1].strip(" {};)"):
        print(f"{s}:{n}:{textes[s][n - 1]}")
print(f"{sum(f > 0 for f in lignes.values())} of {len(lignes)} lines reached")
FIN
