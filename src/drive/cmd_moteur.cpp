#include "drive/cmd_moteur.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/axe.h"
#include "drive/position.h"
#include "seam/plateforme.h"

namespace cmd_moteur {

namespace {

// The axis a command moves, or none.
const axe* axe_de(entier16 commande) {
    if (commande == 1 || commande == 2)
        return &azimut;
    if (commande == 3 || commande == 4)
        return &altitude;
    return nullptr;
}

bool impaire(entier16 commande) { return commande == 1 || commande == 3; }

// Direction and step of a command; `leve`: the command raises the direction line.
void dirige(const axe* a, bool leve) {
    if (a) {
        bitsens = leve ? a->sens : entier16{};
        bitpas = a->pas;
    } else if (cmdsens == 0) {
        bitsens = 0;
        bitpas = 0;
    }
}

void prend_vitesse(const std::array<entier32, 10>& table, const char* nom) {
    const axe* a = axe_de(cmdsens);
    if (!a)
        return;
    if (a->classe < 0 || a->classe > 4)
        base::fatale(base::cause::indice, std::string{nom} + ", classe " + base::texte(a->classe));
    tempopas = table[static_cast<std::size_t>(a->classe.valeur()) + a->rangee];
}

void pas() {
    demi_pas(bitsens, attente, tempopas);
    demi_pas({bitsens + bitpas, "bitsens"}, attente, tempopas);
}

void lit_inversion() {
    valeurs::lecteur f{plateforme::fichier_donnees("inversion.ini")};
    const bool az = f.vrai();
    const bool alt = f.vrai();
    invaz = az;
    invalt = alt;
}

void compte(const axe& a) { a.compte = {a.compte + (sensplus ? 1 : -1), "pas comptés"}; }

void jog(void (*vitesse)(), void (*compte)()) {
    const en_cours ici{jogs};
    fixesens();
    vitesse();
    while (cmdsens != 0) {
        pas();
        if (compte)
            compte();
        if (vitchange)
            vitesse();
    }
}

void rafale(const axe& a, double ecart, entier16 nombre, const entier32& tempo) {
    const en_cours ici{rafales};
    bitsens = ecart > 0 ? a.plus : a.moins;
    const char* champ = ecart > 0 ? a.nom_plus : a.nom_moins;
    for (int i = 1; i <= nombre.valeur(); ++i) {
        demi_pas(bitsens, attenterafale, tempo);
        demi_pas({bitsens + a.pas, champ}, attenterafale, tempo);
    }
}

} // namespace

void fixesens() {
    lit_inversion();
    sensplus = false;
    const axe* a = axe_de(cmdsens);
    dirige(a, a && a->inverse != impaire(cmdsens));
    if (a)
        sensplus = bitsens == a->plus;
}

entier16 commande_du_sens(bool en_altitude, bool leve) {
    lit_inversion();
    const bool impair = (en_altitude ? invalt : invaz) != leve;
    return {(en_altitude ? 3 : 1) + (impair ? 0 : 1), "cmdsens"};
}

void port_a_la_raquette() {
    plateforme::Out32(plateforme::registre_controle, plateforme::controle_raquette);
    plateforme::Out32(plateforme::registre_donnees, 0);
    baselinepaddle = 0;
}

void fixesensdirect() { dirige(axe_de(cmdsens), !impaire(cmdsens)); }

void tempoaltaz() { prend_vitesse(vitessealtaz, "vitessealtaz"); }
void tempoequa() { prend_vitesse(vitesseequa, "vitesseequa"); }

void comptepasaz() { compte(azimut); }
void comptepasalt() { compte(altitude); }

void jogequa_az() { jog(tempoequa, nullptr); }
void jogequa_alt() { jog(tempoequa, nullptr); }
void jogaltaz_az() { jog(tempoaltaz, comptepasaz); }
void jogaltaz_alt() { jog(tempoaltaz, comptepasalt); }

void pasequa() {
    fixesens();
    tempoequa();
    const int nombre = nbpassuivi.valeur();
    for (int i = 1; i <= nombre; ++i) {
        pas();
        if (vitchange)
            tempoequa();
    }
}

void rafaleaz() { rafale(azimut, general::ecartaz, nbpasaz, tempoaz); }

void rafalealt() { rafale(altitude, general::ecartalt, entier16{nbpasalt, "pas en altitude"}, tempoalt); }

} // namespace cmd_moteur
