#!/bin/sh
# ecran.sh COMMAND...: runs it on a virtual display of its own and gives its exit status.
dossier=$(mktemp -d)
numero=$dossier/numero
Xvfb -displayfd 3 -screen 0 2400x1600x24 -nolisten tcp -noreset 3>"$numero" >/dev/null 2>&1 &
serveur=$!
trap 'kill $serveur 2>/dev/null; rm -rf "$dossier"' EXIT
essais=0
while [ ! -s "$numero" ]; do
    essais=$((essais + 1))
    if [ $essais -gt 200 ] || ! kill -0 $serveur 2>/dev/null; then
        echo "ecran.sh : Xvfb ne démarre pas. Remède : sudo apt install xvfb" >&2
        exit 1
    fi
    sleep 0.05
done
export LSAN_OPTIONS="suppressions=$(dirname "$0")/fuites.txt:print_suppressions=0"
DISPLAY=:$(cat "$numero") QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$dossier XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$dossier} "$@"
