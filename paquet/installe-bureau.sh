#!/bin/sh
# Puts Velmoria and its bench into the menu of the user who runs it; asks for no privilege. To be run again when the
# folder has moved. installe-bureau.sh --enleve takes both out.
set -eu

ici=$(cd "$(dirname "$0")" && pwd -P)
menu=${XDG_DATA_HOME:-$HOME/.local/share}/applications

case ${1:-} in
'') ;;
--enleve)
    rm -f "$menu/velmoria-aujourdhui.desktop" "$menu/velmoria-banc.desktop"
    echo "Velmoria et son banc d'essai ne sont plus au menu."
    exit 0
    ;;
*)
    echo "usage : $0 [--enleve]" >&2
    exit 2
    ;;
esac

# A value of a desktop entry: the backslash is its escape.
valeur() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
# A command's path: quoted, where " ` $ \ take a backslash; and all of that is a value.
commande() { valeur "\"$(printf '%s' "$1" | sed 's/[\\"`$]/\\&/g')\""; }

# entree PROGRAM NAME COMMENT ICON
entree() {
    if [ ! -x "$ici/$1" ]; then
        echo "$ici/$1 : introuvable. Lancez ce script depuis le dossier de Velmoria." >&2
        exit 1
    fi
    cat >"$menu/$1.desktop" <<FIN
[Desktop Entry]
Type=Application
Version=1.0
Name=$2
Comment=$3
Exec=$(commande "$ici/$1")
TryExec=$(valeur "$ici/$1")
Path=$(valeur "$ici")
Icon=$(valeur "$ici/icones/$4")
Terminal=false
Categories=Education;Astronomy;
FIN
}

# Both have a meaning of their own in a menu's command, and desktops differ in how they read them there.
case $ici in
*[%=]*)
    echo "Les menus ne savent pas lire « % » ni « = » dans un nom de dossier. Renommez : $ici" >&2
    exit 1
    ;;
esac

mkdir -p "$menu"
entree velmoria-aujourdhui "Velmoria" "Conduire le télescope par le port parallèle" velmoria-256.png
entree velmoria-banc "Velmoria, banc d'essai" "Apprendre et essayer, sans rien brancher" velmoria-banc-256.png
echo "Velmoria et « Velmoria, banc d'essai » sont au menu."
echo "Pour le vrai port, une fois : sudo setcap cap_sys_rawio,cap_sys_nice+ep '$(printf '%s' "$ici" | sed "s/'/'\\\\''/g")/velmoria-aujourdhui'"
