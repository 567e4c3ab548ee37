#include "tracking/suivi_equatorial.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/cmd_moteur.h"
#include "fields/frmequapilot_champs.h"
#include "seam/plateforme.h"
#include "tracking/fraction.h"

namespace suivi_equatorial {

using namespace frmequapilot;
using base::divise;
using base::entier32;
using cmd_moteur::nbpassuivi;

namespace {

constexpr double vitesse_siderale = 15.04; // arcseconds a second of time
constexpr const char* pas_par_seconde = "config_equa.ini, pas par seconde";

// What the panel keeps while it is open.
struct memoire {
    double secondeprec = 0; // the second of the last burst, 0 to 59
    double passeconde = 0;  // steps a second, exact
    double sommesuivi = 0;  // accumulated fraction, steps; a new start keeps it
};
memoire prive;

// Steps a second of the right ascension motor, driven in half steps.
double lit_pas_par_seconde() {
    valeurs::lecteur f{plateforme::fichier_donnees("config_equa.ini")};
    const double pas = f.nombre();
    f.texte();
    const double rapport = f.nombre();
    f.texte();
    const double tour = divise(360, pas * rapport, "config_equa.ini, angle d'un pas");
    const double demi_pas = 3600 * tour / 2;
    return base::fini(divise(vitesse_siderale, demi_pas, "passeconde"), "passeconde");
}

void commence() {
    const auto t = plateforme::maintenant();
    prive.secondeprec = t.seconde;
    txts.ecrit(entier32{t.seconde});
    prive.passeconde = lit_pas_par_seconde();
    txtpas.ecrit(prive.passeconde);
    txtessai.ecrit("0");
    cmd_moteur::cmdsens = 1;
    timersuivi.marche(true);
}

// The interval of the timer only serves to catch the change of second; what was missed is not made up.
void tic() {
    const int secondecour = plateforme::maintenant().seconde;
    if (secondecour == prive.secondeprec)
        return;
    txtessai.ecrit(txtessai.nombre() + 1);
    nbpassuivi = {prive.passeconde, pas_par_seconde};
    const double restesuivi = prive.passeconde - nbpassuivi.reel();
    prive.sommesuivi += restesuivi;
    nbpassuivi = {nbpassuivi + tracking::paie(prive.sommesuivi), pas_par_seconde};
    txtpas1.ecrit(nbpassuivi);
    cmd_moteur::pasequa();
    prive.secondeprec = secondecour;
}

} // namespace

void branche() {
    fiche.remise_a_zero([] { prive = {}; });
    cmdgo.au_clic(commence);
    cmdstopgo.au_clic([] { timersuivi.marche(false); });
    timersuivi.au_tic(tic);
}

} // namespace suivi_equatorial
