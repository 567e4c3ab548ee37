#include "drive/raquette.h"

#include "drive/axe.h"
#include "drive/cmd_moteur.h"
#include "fields/frminterface_champs.h"
#include "fields/frmraquette_champs.h"
#include "seam/plateforme.h"
#include "store/vue.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace cmd_moteur {

using plateforme::Inp32;
using plateforme::registre_controle;
using plateforme::registre_donnees;

namespace {

constexpr int aucune_touche = plateforme::controle_raquette;

struct manette {
    const axe& sur;
    shell::champ_coche& inversion;
    void (*boucle)();
};
const manette en_azimut{azimut, frmraquette::chkaz, paddleaz};
const manette en_altitude{altitude, frmraquette::chkalt, paddlealt};

// The opposite keys of an axis differ in one data line, 128 or 16; its speeds in the control lines.
struct touche {
    int code;
    const manette& de;
    const entier32& tempo;
    bool leve_si_cochee; // raises the direction line with the inversion box ticked, else without
};
const touche touches[] = {
    {2, en_altitude, slotaltr, true},   {3, en_altitude, slotaltm, true},
    {10, en_altitude, slotaltl, true},  {18, en_altitude, slotaltr, false},
    {19, en_altitude, slotaltm, false}, {26, en_altitude, slotaltl, false},
    {13, en_azimut, slotazr, true},     {9, en_azimut, slotazm, true},
    {15, en_azimut, slotazl, true},     {141, en_azimut, slotazr, false},
    {137, en_azimut, slotazm, false},   {143, en_azimut, slotazl, false},
};

void presse(const touche& t) {
    const auto& [sur, inversion, boucle] = t.de;
    bitsens = inversion.coche() == t.leve_si_cochee ? sur.sens : entier16{};
    bitpas = sur.pas;
    tempopaddle = t.tempo;
    if (bitsens == sur.plus)
        sensplus = true;
    boucle();
}

// The data register is read first. What a handler changes in a yield acts at the next use.
void boucle(const axe& a, void (*compte)()) {
    const en_cours ici{appuis};
    a.jeu = 0;
    const entier16 lues = Inp32(registre_donnees);
    entier16 v{lues + Inp32(registre_controle) - baselinepaddle, "code de la raquette"};
    while (v == codepaddle) {
        demi_pas(bitsens, attente, tempopaddle);
        demi_pas({bitsens + bitpas, "bitsens"}, attente, tempopaddle);
        const entier16 d = Inp32(registre_donnees);
        const entier16 c = Inp32(registre_controle);
        baselinepaddle = {bitpas + bitsens, "baselinepaddle"};
        v = {c + d - baselinepaddle, "code de la raquette"};
        compte();
        a.jeu += 1.0;
        a.encode = {a.encode + 1, "pas de la raquette"};
    }
}

} // namespace

void scruteraquette() {
    const entier16 d = Inp32(registre_donnees);
    codepaddle = {d - baselinepaddle + Inp32(registre_controle), "codepaddle"};
    sensplus = false;
    if (codepaddle == aucune_touche) {
        bitsens = 0;
        bitpas = 0;
        tempopaddle = 0;
        return;
    }
    const auto* t = std::find_if(std::begin(touches), std::end(touches),
                                 [](const touche& x) { return codepaddle == x.code; });
    if (t != std::end(touches))
        presse(*t);
}

void demarre_scrutation() {
    static bool dit = false;
    frminterface::Timer.marche(true);
    const auto raison = plateforme::courante.port->raquette_invisible();
    if (!raison.empty() && !std::exchange(dit, true))
        shell::vue_courante->message(raison);
}

void paddleaz() { boucle(azimut, comptepasaz); }
void paddlealt() { boucle(altitude, comptepasalt); }

} // namespace cmd_moteur
