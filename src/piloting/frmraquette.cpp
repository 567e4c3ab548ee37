#include "piloting/frmraquette.h"

#include "base/valeurs.h"
#include "drive/etat_moteur.h"
#include "fields/frminterface_champs.h"
#include "fields/frmraquette_champs.h"
#include "piloting/jeu.h"
#include "piloting/pilotage.h"
#include "seam/plateforme.h"
#include "store/champs_fichier.h"

#include <array>

namespace frmraquette {

using namespace cmd_moteur;
using piloting::backlashalt;
using piloting::backlashaz;

namespace {

const char* const fichier = "vitessemanu.ini";

// A scroll bar at v stands for the delay count sommet - facteur x v. The ranges join: from the slowest low
// speed to the quickest fast one they are one scale.
struct gamme {
    int sommet;
    int facteur;
};
constexpr gamme lente{1119078, 20};
constexpr gamme moyenne{463738, 12};
constexpr gamme rapide{70534, 2};

struct vitesse {
    champ_barre& barre;
    champ_texte& champ;
    entier32& slot;
    gamme etendue;
};
// In the order of `vitessemanu`.
const std::array<vitesse, 6> vitesses = {{{HScrollazl, txtaz(0), slotazl, lente},
                                          {HScrollazm, txtaz(1), slotazm, moyenne},
                                          {HScrollazr, txtaz(2), slotazr, rapide},
                                          {HScrollaltl, txtalt(0), slotaltl, lente},
                                          {HScrollaltm, txtalt(1), slotaltm, moyenne},
                                          {HScrollaltr, txtalt(2), slotaltr, rapide}}};

// A bar that is to stand at 0 fires no change: its `slot` variable stays as it was.
void charge() {
    fiche.largeur(largeur_fermee);
    fiche.hauteur(hauteur);
    valeurs::lecteur f{plateforme::fichier_donnees("inversion.ini")};
    const bool az = f.vrai();
    const bool alt = f.vrai();
    invaz = az;
    invalt = alt;
    chkaz.coche(az);
    chkalt.coche(alt);
    for (std::size_t i = 0; i < vitesses.size(); ++i)
        vitesses[i].champ.ecrit(vitessemanu[i]);
    for (const auto& v : vitesses)
        v.barre.valeur({(v.etendue.sommet - v.champ.nombre()) / v.etendue.facteur, v.champ.lieu()}, fichier);
    txtbacklash_alt.ecrit(backlashalt);
    txtbacklash_az.ecrit(backlashaz);
}

void change_vitesse(const vitesse& v) {
    v.champ.ecrit(entier32{v.etendue.sommet - v.etendue.facteur * v.barre.valeur(), v.champ.lieu()});
    v.slot = v.champ.nombre32();
}

void note_jeu(double& jeu, champ_texte& champ, double pas) {
    jeu = pas;
    champ.ecrit(jeu);
}

void enregistre() {
    piloting::enregistre_comptes(
        fichier, vitessemanu, [](std::size_t i) -> auto& { return vitesses[i].champ; }, 1);
    invaz = chkaz.coche();
    invalt = chkalt.coche();
    valeurs::ecrivain f;
    f.booleen(invaz);
    f.booleen(invalt);
    f.enregistre(plateforme::fichier_donnees("inversion.ini"));
    reglages::ecrit("backlash.ini", std::array{&txtbacklash_az, &txtbacklash_alt});
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    for (const auto& v : vitesses)
        v.barre.au_changement([&v] { change_vitesse(v); });
    lblbacklash.au_clic(
        [] { piloting::bascule_section(lblbacklash, fiche, largeur_fermee, largeur_ouverte); });
    cmdjeuaz_deb.au_clic([] { note_jeu(backlashaz, txtbacklash_az, 0); });
    cmdjeuaz_fin.au_clic([] { note_jeu(backlashaz, txtbacklash_az, jeucourantaz); });
    cmdjeualt_deb.au_clic([] { note_jeu(backlashalt, txtbacklash_alt, 0); });
    cmdjeualt_fin.au_clic([] { note_jeu(backlashalt, txtbacklash_alt, jeucourantalt); });
    cmdvalid.au_clic(enregistre);
    Cmdquit.au_clic([] {
        frminterface::Timer.marche(false);
        fiche.decharge();
    });
}

} // namespace frmraquette
