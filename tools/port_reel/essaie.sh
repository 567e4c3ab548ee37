#!/usr/bin/env bash
# The program's real port in an emulated PC, seen from both sides: tools/port_reel/essaie.sh
# Prints what the program said inside and what reached the port outside; status 1 if either is not as expected.
set -euo pipefail
cd "$(dirname "$0")/../.."
ici=tools/port_reel
construit=build/port_reel

if [ "$(uname -m)" != x86_64 ]; then
    echo "The emulated PC runs this machine's own programs, so this test needs an x86_64 machine." >&2
    exit 2
fi
tools/installe.sh construire
tools/installe.sh port_reel
cmake -S . -B "$construit" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMORIA_TESTS=OFF -DVELMORIA_PORT_REEL=ON \
    -DVELMORIA_ERREURS=ON >/dev/null
cmake --build "$construit" --target velmoria-sans-fenetres amorce -j "$(nproc)"

atelier=$(mktemp -d "$PWD/$construit/atelier.XXXXXX")
trap 'rm -rf "$atelier"' EXIT

# Debian's kernel, unpacked and never installed; kept for the next time.
noyau=$construit/vmlinuz
if [ ! -s "$noyau" ]; then
    paquet=$(apt-cache depends linux-image-amd64 | awk '/Depends: linux-image-/ { print $2; exit }')
    : "${paquet:?no kernel package is known: apt-get update}"
    (cd "$atelier" && apt-get -o APT::Sandbox::User=root download -q "$paquet")
    dpkg-deb --fsys-tarfile "$atelier"/linux-image-*.deb | tar -x -C "$atelier" --wildcards './boot/vmlinuz-*'
    mv "$atelier"/boot/vmlinuz-* "$noyau"
fi

# The PC's files: the program, its data, and a first process.
racine=$atelier/racine
mkdir -p "$racine"/{dev,proc,sys,opt}
cp -r data "$racine/data"
cp "$construit/tools/port_reel/amorce" "$racine/init"
cp "$construit/tools/port_reel/velmoria-sans-fenetres" "$racine/opt/velmoria"
(cd "$racine" && find . | cpio --quiet -o -H newc -R +0:+0) >"$atelier/initrd"

# One run of the PC: demarre NAME [KERNEL OPTION...]. The firmware is one that leaves the parallel port alone, so
# what the emulator logs is the program's from the first byte. The date is one the almanac knows.
demarre() {
    local nom=$1
    shift
    timeout 120 qemu-system-x86_64 -accel tcg -machine pc -m 256 -nodefaults -no-user-config -display none \
        -nic none -no-reboot -bios qboot.rom -rtc base=2001-08-15T22:00:00 -parallel null \
        -serial "file:$atelier/$nom.console" -serial "file:$atelier/$nom.dedans" \
        -trace parallel_ioport_write -trace parallel_ioport_read -D "$atelier/$nom.dehors" \
        -kernel "$noyau" -initrd "$atelier/initrd" -append "console=ttyS0 panic=-1 $*" || {
        tail -n 20 "$atelier/$nom.console"
        echo "$nom: the PC did not come to its end" >&2
        exit 1
    }
    cat "$atelier/$nom.dedans" >>"$atelier/dedans"
    # One access a line: 888=0c is a write, 888?0c a read and what it gave. Any other line stays as it is.
    echo "$nom:" >>"$atelier/dehors"
    sed -E 's/^.*parallel_ioport_write .*addr 0x0?(.) val 0x(..)$/88\1=\2/
            s/^.*parallel_ioport_read .*addr 0x0?(.) val 0x(..)$/88\1?\2/
            s/^880/888/; s/^881/889/; s/^882/890/' "$atelier/$nom.dehors" >>"$atelier/dehors"
}

# compare WHAT: against WHAT.attendu, whose lines of comment do not count
compare() {
    sed '/^#/d' "$ici/$1.attendu" | if [ "$1" = dehors ]; then xargs -n 1; else cat; fi >"$atelier/attendu"
    diff -u --label "$ici/$1.attendu" --label "$1" "$atelier/attendu" "$atelier/$1"
}

debut=$SECONDS
demarre ordinaire
demarre verrouille lockdown=integrity
qemu-system-x86_64 --version | head -n 1
grep -o 'Linux version [^ ]*' "$atelier/ordinaire.console"
cat "$atelier/dedans"
echo "== seen from outside"
fmt -w 110 "$atelier/dehors"
echo
faute=0
compare dedans || faute=1
compare dehors || faute=1
if [ $faute != 0 ]; then
    tail -n 5 "$atelier"/*.console
    exit 1
fi
echo "The real port is as expected ($((SECONDS - debut)) s)."
