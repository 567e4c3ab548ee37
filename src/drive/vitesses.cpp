#include "drive/vitesses.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/etat_moteur.h"
#include "seam/plateforme.h"

namespace vitesses {

namespace {

template <class Table> void lit(const std::string& nom, Table& table) {
    valeurs::lecteur f{plateforme::fichier_donnees(nom)};
    for (int i = 0; !f.fini(); ++i)
        base::element(table, i, nom) = f.nombre32();
}

} // namespace

void litvitesses() {
    lit("vitessemanu.ini", cmd_moteur::vitessemanu);
    lit("vitesseequa.ini", cmd_moteur::vitesseequa);
    lit("vitessealtaz.ini", cmd_moteur::vitessealtaz);
}

} // namespace vitesses
