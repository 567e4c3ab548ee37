// How a command becomes direction, speed and pulses on the port. Every pulse is two writes, each followed by
// a counted delay and a yield; a handler that runs in a yield acts on the very next use of what it changes.
#pragma once

#include "drive/etat_moteur.h"
#include "seam/plateforme.h"

#include <cstdint>

namespace cmd_moteur {

/// Sets `bitsens`, `bitpas`, `sensplus` from `cmdsens`, with the inversion read from `inversion.ini` at each
/// call into `invaz`, `invalt`. A command outside 0 to 4 leaves `bitsens` and `bitpas`. Fatal if the file is
/// missing or short.
void fixesens();

/// The jog command (1 to 4) that moves an axis, altitude or azimuth, with its direction line raised or low,
/// by the inversion read as `fixesens` reads it.
entier16 commande_du_sens(bool en_altitude, bool leve);

/// Sets `bitsens`, `bitpas` for a slew, without inversion. Its senses are opposite to those of `fixesens`:
/// each keeps its own table.
void fixesensdirect();

/// Set `tempopas` from `vitessealtaz` or `vitesseequa` by `cmdsens` and the class of its axis; a command of
/// no axis leaves it. A class outside 0 to 4 is fatal (`indice`).
void tempoaltaz();
void tempoequa();

/// Count one step of the axis, up if `sensplus`, else down. Fatal beyond 32 bits.
void comptepasaz();
void comptepasalt();

/// The counted delay of n + 1 counts of the general loop (`ns_par_compte`); none for a negative n.
inline void attente(entier32 n) {
    plateforme::courante.boucle->attend((std::int64_t{n.valeur()} + 1) * plateforme::ns_par_compte);
}

/// The counted delay of the slews: n counts of the general loop, one less than `attente`; none for 0 and
/// less.
inline void attentepointage(entier32 n) {
    plateforme::courante.boucle->attend(std::int64_t{n.valeur()} * plateforme::ns_par_compte);
}

/// That of the bursts: n + 1 counts of the plain integer loop (`ns_par_compte_entier`).
inline void attenterafale(entier32 n) {
    plateforme::courante.boucle->attend((std::int64_t{n.valeur()} + 1) * plateforme::ns_par_compte_entier);
}

/// Half a pulse, by which every pulse leaves: the value on the data register, one of the delays above with
/// its count, a yield.
inline void demi_pas(entier16 valeur, void (*delai)(entier32), entier32 n) {
    plateforme::Out32(plateforme::registre_donnees, valeur);
    delai(n);
    plateforme::cede();
}

/// Jogs: run until `cmdsens` is 0 at the head of the loop. The caller sets `cmdsens` first. Those of the
/// alt-azimuth mount count their steps.
void jogequa_az();
void jogequa_alt();
void jogaltaz_az();
void jogaltaz_alt();

/// Sends `nbpassuivi` steps for the sidereal drive, whatever `cmdsens` becomes meanwhile.
void pasequa();

/// Send `nbpasaz` or `nbpasalt` steps in the sense of `ecartaz` or `ecartalt`, with the direction values of
/// the mount (a difference of 0 goes the minus way) and delays of the plain integer loop
/// (`ns_par_compte_entier`).
void rafaleaz();
void rafalealt();

/// Gives the port to the hand paddle: control register 11, data register and `baselinepaddle` 0.
void port_a_la_raquette();

} // namespace cmd_moteur
