#include "frame/frmcoord.h"

#include "drive/etat_moteur.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/frminterface.h"
#include "seam/plateforme.h"
#include "sky/affichage.h"
#include "sky/almanach.h"
#include "sky/heure.h"

namespace frmcoord {

using base::entier32;
using general::decalageheure;

namespace {

constexpr int mai = 4; // positions in the list of months
constexpr int octobre = 9;

void passe_en_ete() {
    optété.coche(true);
    decalageheure = 2;
}

void passe_en_hiver() {
    opthivers.coche(true);
    decalageheure = 1;
}

// The season goes by the month; a click corrects it.
void choisit_saison() {
    const int mois = cbmois.position();
    if (mois >= mai && mois <= octobre)
        passe_en_ete();
    else
        passe_en_hiver();
}

// Where the civil day is ahead of the universal one. An hour of 22 in winter is left to the first tick.
void corrige_date(int jour) {
    const auto veille_si = [jour](int heure, champ_option& saison) {
        if (txth.nombre() == heure && saison.coche()) {
            cbjour.position(jour - 2);
            general::lit_almanach();
        }
    };
    veille_si(22, optété);
    veille_si(23, optété);
    veille_si(23, opthivers);
}

void charge() {
    const auto t = plateforme::maintenant();
    frminterface::coordvisible = true;
    passe_en_ete();
    general::ecritheure(t.heure);
    txtmin.ecrit(entier32{t.minute});
    txts.ecrit(entier32{t.seconde});
    remplirdates();
    general::ecritdate(t);
    choisit_saison();
    corrige_date(t.jour);
    cmd_moteur::compteaz = 0;
    cmd_moteur::comptealt = 0;
    for (auto* champ :
         {&txtcoordaz1, &txtcoordaz2, &txtcoordaz3, &txtcoordalt1, &txtcoordalt2, &txtcoordalt3})
        champ->ecrit("?");
    frminterface::heuretimer.marche(true);
}

void tic() {
    general::synchro_heure();
    general::passe_minuit();
    general::majaz();
    general::majalt();
}

} // namespace

void remplirdates() {
    const auto nombres = [](int premier, int dernier) {
        std::vector<std::string> lignes;
        for (int i = premier; i <= dernier; ++i)
            lignes.push_back(std::to_string(i));
        return lignes;
    };
    cbjour.ajoute(nombres(1, 31));
    cbmois.ajoute({"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre",
                   "octobre", "novembre", "décembre"});
    cbannee.ajoute(nombres(0, 9));
}

void branche() {
    fiche.au_chargement(charge);
    optété.au_clic(passe_en_ete);
    opthivers.au_clic(passe_en_hiver);
    frminterface::heuretimer.au_tic(tic);
}

} // namespace frmcoord
