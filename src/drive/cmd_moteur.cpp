#include "drive/cmd_moteur.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/position.h"
#include "seam/plateforme.h"

namespace cmd_moteur {

using plateforme::Out32;
using plateforme::registre_donnees;

namespace {

struct axe {
    int pas;  // its step line
    int sens; // its direction line
};
constexpr int controle_raquette = 11;
constexpr axe azimut{4, 8};
constexpr axe altitude{1, 2};

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
void dirige(bool leve) {
    if (const axe* a = axe_de(cmdsens)) {
        bitsens = leve ? a->sens : 0;
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
    const entier16 classe = a == &azimut ? classevitaz : classevitalt;
    if (classe < 0 || classe > 4)
        base::fatale(base::cause::indice, std::string{nom} + ", classe " + base::texte(classe));
    tempopas = table[static_cast<std::size_t>(classe.valeur()) + (a == &azimut ? 0U : 5U)];
}

// n + 1 passes of a loop counted from 0 to n inclusive.
void compte_jusqu_a(entier32 n, std::int64_t ns) {
    if (n >= 0)
        plateforme::courante.boucle->attend((std::int64_t{n.valeur()} + 1) * ns);
}

void demi_pas(entier16 valeur) {
    Out32(registre_donnees, valeur);
    attente(tempopas);
    plateforme::cede();
}

void pas() {
    demi_pas(bitsens);
    demi_pas(bitsens + bitpas);
}

void lit_inversion() {
    valeurs::lecteur f{plateforme::fichier_donnees("inversion.ini")};
    const bool az = f.vrai();
    const bool alt = f.vrai();
    invaz = az;
    invalt = alt;
}

// Counted among the `jogs` as long as it lives.
struct jog_en_cours {
    jog_en_cours() { ++jogs; }
    ~jog_en_cours() { --jogs; }
    jog_en_cours(const jog_en_cours&) = delete;
    jog_en_cours& operator=(const jog_en_cours&) = delete;
};

void jog(void (*vitesse)(), void (*compte)()) {
    const jog_en_cours ici;
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

void rafale(double ecart, entier16 plus, entier16 moins, entier16 nombre, const entier32& tempo, int bit) {
    bitsens = ecart > 0 ? plus : moins;
    for (entier32 i = 1; i <= entier32{nombre}; ++i) {
        for (const int ligne : {0, bit}) {
            Out32(registre_donnees, bitsens + entier16{ligne});
            compte_jusqu_a(tempo, plateforme::ns_par_compte_entier);
            plateforme::cede();
        }
    }
}

} // namespace

void fixesens() {
    lit_inversion();
    sensplus = false;
    const axe* a = axe_de(cmdsens);
    dirige(impaire(cmdsens) != static_cast<bool>(a == &azimut ? invaz : invalt));
    if (a)
        sensplus = bitsens == (a == &azimut ? azplus : altplus);
}

entier16 commande_du_sens(bool en_altitude, bool leve) {
    lit_inversion();
    const bool impair = leve != static_cast<bool>(en_altitude ? invalt : invaz);
    return entier16{(en_altitude ? 3 : 1) + (impair ? 0 : 1)};
}

void port_a_la_raquette() {
    Out32(plateforme::registre_controle, controle_raquette);
    Out32(registre_donnees, 0);
    baselinepaddle = 0;
}

void fixesensdirect() { dirige(!impaire(cmdsens)); }

void tempoaltaz() { prend_vitesse(vitessealtaz, "vitessealtaz"); }
void tempoequa() { prend_vitesse(vitesseequa, "vitesseequa"); }

void comptepasaz() { compteaz += sensplus ? entier32{1} : entier32{-1}; }
void comptepasalt() { comptealt += sensplus ? entier32{1} : entier32{-1}; }

void attente(entier32 n) { compte_jusqu_a(n, plateforme::ns_par_compte); }

void attentepointage(entier32 n) {
    plateforme::courante.boucle->attend(std::int64_t{n.valeur()} * plateforme::ns_par_compte);
}

void jogequa_az() { jog(tempoequa, nullptr); }
void jogequa_alt() { jog(tempoequa, nullptr); }
void jogaltaz_az() { jog(tempoaltaz, comptepasaz); }
void jogaltaz_alt() { jog(tempoaltaz, comptepasalt); }

void pasequa() {
    fixesens();
    tempoequa();
    const entier32 nombre = nbpassuivi;
    for (entier32 i = 1; i <= nombre; ++i) {
        pas();
        if (vitchange)
            tempoequa();
    }
}

void rafaleaz() { rafale(general::ecartaz, azplus, azmoins, nbpasaz, tempoaz, azimut.pas); }

void rafalealt() {
    rafale(general::ecartalt, altplus, altmoins, entier16{nbpasalt, {"pas en altitude"}}, tempoalt,
           altitude.pas);
}

} // namespace cmd_moteur
