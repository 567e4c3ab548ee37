#include "drive/raquette.h"

#include "drive/cmd_moteur.h"
#include "fields/frmraquette_champs.h"
#include "seam/plateforme.h"

#include <algorithm>
#include <iterator>

namespace cmd_moteur {

using plateforme::Inp32;
using plateforme::registre_controle;
using plateforme::registre_donnees;

namespace {

constexpr int aucune_touche = 11;

struct axe {
    int pas;  // its step line
    int sens; // its direction line
    const entier16& plus;
    shell::champ_coche& inversion;
    void (*boucle)();
};
const axe azimut{4, 8, azplus, frmraquette::chkaz, paddleaz};
const axe altitude{1, 2, altplus, frmraquette::chkalt, paddlealt};

// The opposite keys of an axis differ in one data line, 128 or 16; its speeds in the control lines.
struct touche {
    int code;
    const axe& sur;
    const entier32& tempo;
    bool leve_si_cochee; // raises the direction line with the inversion box ticked, else without
};
const touche touches[] = {
    {2, altitude, slotaltr, true},   {3, altitude, slotaltm, true},   {10, altitude, slotaltl, true},
    {18, altitude, slotaltr, false}, {19, altitude, slotaltm, false}, {26, altitude, slotaltl, false},
    {13, azimut, slotazr, true},     {9, azimut, slotazm, true},      {15, azimut, slotazl, true},
    {141, azimut, slotazr, false},   {137, azimut, slotazm, false},   {143, azimut, slotazl, false},
};

void presse(const touche& t) {
    bitsens = t.sur.inversion.coche() == t.leve_si_cochee ? t.sur.sens : 0;
    bitpas = t.sur.pas;
    tempopaddle = t.tempo;
    if (bitsens == t.sur.plus)
        sensplus = true;
    t.sur.boucle();
}

void demi_pas(entier16 valeur) {
    plateforme::Out32(registre_donnees, valeur);
    attente(tempopaddle);
    plateforme::cede();
}

// The data register is read first. What a handler changes in a yield acts at the next use.
void boucle(double& jeu, entier32& encode, void (*compte)()) {
    jeu = 0;
    entier16 v = Inp32(registre_donnees);
    v += Inp32(registre_controle);
    v -= baselinepaddle;
    while (v == codepaddle) {
        demi_pas(bitsens);
        demi_pas(bitsens + bitpas);
        const entier16 d = Inp32(registre_donnees);
        const entier16 c = Inp32(registre_controle);
        baselinepaddle = bitpas + bitsens;
        v = c + d - baselinepaddle;
        compte();
        jeu += 1.0;
        encode += 1;
    }
}

} // namespace

void scruteraquette() {
    entier16 code = Inp32(registre_donnees) - baselinepaddle;
    code += Inp32(registre_controle);
    codepaddle = code;
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

void paddleaz() { boucle(jeucourantaz, pasencodeaz, comptepasaz); }
void paddlealt() { boucle(jeucourantalt, pasencodealt, comptepasalt); }

} // namespace cmd_moteur
