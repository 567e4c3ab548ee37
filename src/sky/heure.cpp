#include "sky/heure.h"

#include "fields/frmcoord_champs.h"
#include "sky/almanach.h"

namespace general {

using base::entier16;
using base::entier32;

void ecritheure(int heure) {
    frmcoord::fiche.charge(); // whose load chooses the offset
    const auto heures = [](int civile) { return entier32{civile - decalageheure, "txth"}; };
    // Written once: a field that changes is painted.
    if (heure == 0)
        frmcoord::txth.ecrit(heures(24));
    else if (heure == 1)
        frmcoord::txth.ecrit(decalageheure == 1 ? "0" : "23");
    else
        frmcoord::txth.ecrit(heures(heure));
}

void synchro_heure() {
    const auto t = plateforme::maintenant();
    ecritheure(t.heure);
    if (t.heure == 0) {
        frmcoord::cbjour.position(t.jour - 2);
        lit_almanach();
    }
    frmcoord::txtmin.ecrit(entier32{t.minute});
    frmcoord::txts.ecrit(entier32{t.seconde});
}

void ecritdate(const plateforme::instant& date) {
    frmcoord::cbjour.position(date.jour - 1);
    frmcoord::cbmois.position(date.mois - 1);
    frmcoord::cbannee.position(date.annee - 2000);
}

void passe_minuit() {
    if (frmcoord::txth.nombre() != 0 || frmcoord::txtmin.nombre() != 0 || frmcoord::txts.nombre() != 0)
        return;
    ecritdate(plateforme::maintenant());
    lit_almanach();
}

} // namespace general
