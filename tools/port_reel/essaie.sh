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

# Debian's kernel and its modules, unpacked and never installed; kept for the next time.
noyau=$construit/noyau
if [ ! -s "$noyau/vmlinuz" ]; then
    paquet=$(apt-cache depends linux-image-amd64 | awk '/Depends: linux-image-/ { print $2; exit }')
    : "${paquet:?no kernel package is known: apt-get update}"
    (cd "$atelier" && apt-get -o APT::Sandbox::User=root download -q "$paquet")
    mkdir -p "$noyau/modules"
    dpkg-deb --fsys-tarfile "$atelier"/linux-image-*.deb | tar -x -C "$atelier" --wildcards './boot/vmlinuz-*' \
        '*/parport/parport.ko' '*/parport/parport_pc.ko' '*/char/lp.ko' '*/char/ppdev.ko'
    find "$atelier/lib" -name '*.ko' -exec mv {} "$noyau/modules" \;
    mv "$atelier"/boot/vmlinuz-* "$noyau/vmlinuz"
fi

# The PC's files: the program, its data, the modules, and a first process.
racine=$atelier/racine
mkdir -p "$racine"/{dev,proc,sys,opt,etc}
echo 'paul:x:1000:1000::/:' >"$racine/etc/passwd"
cp -r data "$racine/data"
cp -r "$noyau/modules" "$racine/modules"
cp "$construit/tools/port_reel/amorce" "$racine/init"
cp "$construit/tools/port_reel/velmoria-sans-fenetres" "$racine/opt/velmoria"
(cd "$racine" && find . | cpio --quiet -o -H newc -R +0:+0) >"$atelier/initrd"

# One run of the PC: demarre NAME KERNEL_OPTIONS BASE... with a parallel port at each base. The firmware is one that
# leaves them alone, so what the emulator logs begins with the program's first byte. The date is one the almanac knows.
demarre() {
    local nom=$1 options=$2 base ports=()
    shift 2
    for base in "$@"; do
        ports+=(-chardev "null,id=p$base" -device "isa-parallel,chardev=p$base,iobase=0x$base")
    done
    timeout 240 qemu-system-x86_64 -accel tcg -machine pc -m 256 -nodefaults -no-user-config -display none \
        -nic none -no-reboot -bios qboot.rom -rtc base=2001-08-15T22:00:00 -parallel none "${ports[@]}" \
        -serial "file:$atelier/$nom.console" -serial "file:$atelier/$nom.dedans" \
        -trace memory_region_ops_write -trace memory_region_ops_read -D "$atelier/$nom.brut" \
        -kernel "$noyau/vmlinuz" -initrd "$atelier/initrd" -append "console=ttyS0 panic=-1 $options" || {
        tail -n 20 "$atelier/$nom.console"
        echo "$nom: the PC did not come to its end" >&2
        exit 1
    }
    # Of the long sentences what tells them apart; the number of a process is chance.
    sed -E 's/^boîte : Le port parallèle (0x\w+) .* ioperm a échoué \((.*)\), l.ouverture de .dev.port aussi \(([^)]*)\)(.*) ; cause probable : ([^;]*) ; .*/hors d'"'"'atteinte : \1, \2, \3\4 ; \5/
            s/\r$//; s/^(boîte : Les touches [^:]*\w) : .*/\1/; /^\{\}$/d; s/processus [0-9]+/processus N/' "$atelier/$nom.dedans" >>"$atelier/dedans"
    # One access a line: 378=0c is a write, 378?0c a read and what it gave. Between the braces that the first process
    # sends to the serial line the kernel's driver comes or goes.
    echo "$nom:" >>"$atelier/dehors"
    grep -E "name 'parallel'|addr 0x2f8 value 0x7[bd] .*'serial'" "$atelier/$nom.brut" |
        sed -E '/0x2f8 value 0x7b/,/0x2f8 value 0x7d/{/0x2f8 value 0x7d/!d; s/.*/driver/}' | sed -E 's/^.*ops_write .*addr 0x(\w+) value 0x(\w+) .*$/\1=0\2/
            s/^.*ops_read .*addr 0x(\w+) value 0x(\w+) .*$/\1?0\2/; s/0(..)$/\1/' >>"$atelier/dehors"
}

# compare WHAT: against WHAT.attendu, whose lines of comment do not count. Outside, a line that begins with > is a
# whole run on the two registers it names, written once behind "run:" with D and C for them.
compare() {
    sed '/^#/d' "$ici/$1.attendu" | if [ "$1" = dehors ]; then
        awk '/^run:/ { dans = 1; next } /^end/ { dans = 0; next } dans { run = run " " $0; next }
             /^>/ { t = run; gsub(/D/, $2, t); gsub(/C/, $3, t); print t; next } { print }' | xargs -n 1
    else cat; fi >"$atelier/attendu"
    diff -u --label "$ici/$1.attendu" --label "$1" "$atelier/attendu" "$atelier/$1"
}

debut=$SECONDS
demarre ordinaire "" 378 278 d010
demarre verrouille lockdown=integrity 378
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
