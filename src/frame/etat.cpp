#include "frame/etat.h"

#include "drive/etat_moteur.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmequapilot_champs.h"
#include "remote/telescope.h"
#include "seam/plateforme.h"

namespace etat {

namespace {

using planetarium::monture;

// An inner motion says more than the one it runs in: a jog in a tracking's yield is what the observer sees.
const char* mouvement() {
    if (planetarium::pointage_en_cours())
        return "pointage";
    if (cmd_moteur::jogs > 0)
        return "déplacement";
    if (cmd_moteur::appuis > 0)
        return "touche de raquette";
    if (cmd_moteur::rafales > 0 || frmaltazsuivi::timcompteur.regarde().marche)
        return "suivi";
    if (frmequapilot::timersuivi.regarde().marche)
        return "suivi sidéral";
    return "à l'arrêt";
}

// All four values 0: a tracking would send both senses alike.
bool sens_non_pris() {
    using namespace cmd_moteur;
    return azplus == 0 && azmoins == 0 && altplus == 0 && altmoins == 0;
}

} // namespace

std::string ligne() {
    const auto m = planetarium::mode();
    std::string s = m == monture::equatoriale    ? "Équatorial"
                    : m == monture::altazimutale ? "Altazimutal"
                                                 : "Monture à choisir";
    const auto ajoute = [&s](const char* t) { s += std::string{" · "} + t; };
    if (m != monture::aucune) {
        ajoute(planetarium::raquette() ? "raquette" : "ordinateur");
        ajoute(mouvement());
    }
    if (m == monture::altazimutale) {
        if (frmcoord::txtessai.regarde().texte.empty())
            ajoute("almanach non lu");
        if (sens_non_pris())
            ajoute("sens non pris");
    }
    if (!plateforme::courante.port->atteint())
        ajoute("port hors d'atteinte");
    return s;
}

} // namespace etat
