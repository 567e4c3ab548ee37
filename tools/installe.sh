#!/usr/bin/env bash
# Installs the Debian packages that are missing: tools/installe.sh construire|verifier|mesurer
# `construire` is what building and running needs, `verifier` adds the tests', `mesurer` the benchmarks'; the others serve
# the tools of their names.
set -euo pipefail

paquets=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools libgl-dev fonts-dejavu-core)
case "${1:-construire}" in
construire) ;;
verifier) paquets+=(clang clang-tidy libclang-rt-14-dev libgtest-dev xvfb xauth xdotool indi-bin python3 python3-erfa python3-astropy python3-pil) ;;
mesurer) paquets+=(libbenchmark-dev xvfb xauth) ;;
couverture) paquets+=(clang llvm libclang-rt-14-dev libgtest-dev xvfb xauth python3) ;;
captures) paquets+=(xvfb xauth) ;;
captures_aide) paquets+=(xvfb xauth python3 python3-pil) ;;
port_reel) paquets=(qemu-system-x86 cpio) ;;
*)
    echo "usage: $0 construire|verifier|mesurer|couverture|captures|captures_aide|port_reel" >&2
    exit 2
    ;;
esac

manquants=()
for p in "${paquets[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || manquants+=("$p")
done
[ ${#manquants[@]} -eq 0 ] && exit 0

if ! command -v apt-get >/dev/null; then
    echo "Install with your distribution's tools: ${manquants[*]}" >&2
    exit 1
fi
racine=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "As root: apt-get install ${manquants[*]}" >&2
        exit 1
    fi
    racine=(sudo)
fi
echo "Installing: ${manquants[*]}"
export DEBIAN_FRONTEND=noninteractive
"${racine[@]}" apt-get update -q
"${racine[@]}" apt-get install -q -y --no-install-recommends "${manquants[@]}"
