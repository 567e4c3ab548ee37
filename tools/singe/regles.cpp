#include "singe.h"

#include "base/nombre.h"
#include "drive/etat_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "seam/plateforme.h"

#include <algorithm>
#include <bitset>
#include <cmath>
#include <sstream>
#include <string_view>

namespace singe::regles {

namespace {

std::string acte;                // verb and control of the line
std::string auteur;              // what the line acts on, if that may write
std::string prise_raquette;      // what gave the port to the paddle
bool attend = false;             // the line lets time pass...
bool ordonnee = false;           // ...in which an order or a timer that was on may write
std::int64_t dernier_ordre = -1; // when the last such order is due
bool quitter = false;            // an order to quit was given
bool fichiers = false;           // data files were tampered with
bool rafales = false;            // tracking was on: bursts and jogs may mix their direction values
std::bitset<256> sens_tapes;     // low bytes of the direction values typed so far

// Motions and mode commands by what starts them; the chart's slew is an entry of its popup,
// and the trackings go on by their timers.
constexpr std::string_view auteurs =
    " frminterface.barequa(1) frminterface.barequa(2) frminterface.barequa(3) frminterface.baraltaz(1)"
    " frminterface.baraltaz(2) frminterface.baraltaz(3) frminterface.baraltaz(5) frminterface.bargeneral(1)"
    " frminterface.bargeneral(2) frminterface.Quitter frminterface.mnusuivi frminterface.mnupilotageequa"
    " frminterface.mnupilotagealtaz frmaltazpilot.cmdag frmaltazpilot.cmdad frmaltazpilot.cmdhb"
    " frmaltazpilot.cmdhh frmequapilot.cmdag frmequapilot.cmdad frmequapilot.cmdhb frmequapilot.cmdhh"
    " frmaltazsuivi.cmdraquette frmconfig.cmdaltencoding frmconfig.cmdazencoding frmconfig.cmdbacklash"
    " frmequaconfig.cmdbacklash frmaltazpointage.lbObjets frmequapointage.lbObjets frmequapointage.bOK"
    " mnuPoint frmequapilot.cmdgo frmaltazsuivi.cmdcalcul frmaltazsuivi.cmdstop ";

// The one of these that a command acts on; empty if there is none.
std::string auteur_de(const std::string& commande) {
    std::istringstream mots{commande};
    std::string mot;
    std::string sujet;
    mots >> mot >> sujet;
    return auteurs.find(' ' + sujet + ' ') == std::string_view::npos ? std::string{} : sujet;
}

// The timer that moves a motor; empty if none is on.
std::string_view minuteur_moteur() {
    if (frmaltazsuivi::timcompteur.regarde_marche())
        return "suivi altaz";
    if (frmequapilot::timersuivi.regarde_marche())
        return "suivi equa";
    return frminterface::Timer.regarde_marche() ? "raquette" : "";
}

// Their load takes the port for the computer.
bool panneau_moteur_charge() {
    return frmaltazpilot::fiche.est_charge() || frmequapilot::fiche.est_charge() ||
           frmaltazsuivi::fiche.est_charge();
}

} // namespace

void ligne(const std::string& l, std::int64_t temps) {
    attend = l.starts_with("avance ");
    acte = attend ? "avance" : l.substr(0, l.find(' ', std::min(l.find(' '), l.size() - 1) + 1));
    auteur = auteur_de(l);
    if (l.starts_with("a ")) {
        const auto ordre = l.substr(std::min(l.find(' ', 2), l.size() - 1) + 1);
        if (!auteur_de(ordre).empty())
            dernier_ordre =
                std::max<std::int64_t>(dernier_ordre, temps + std::llround(base::nombre(l.substr(2)) * 1e6));
    }
    for (const std::string_view prise : {"backlash", "azencoding", "altencoding", "cmdraquette", "(2)"})
        if (auteur.ends_with(prise))
            prise_raquette = auteur;
    ordonnee = dernier_ordre >= temps || !minuteur_moteur().empty();
    quitter = quitter || l.find("frminterface.Quitter") != std::string::npos;
    fichiers = fichiers || l.starts_with("fichier ");
}

std::string mouvement() {
    if (!auteur.empty())
        return auteur;
    const auto m = minuteur_moteur();
    return m.empty() ? "avance" : m == "raquette" ? "raquette " + prise_raquette : std::string{m};
}

// Direction value alone, or with one step line raised above it.
static bool sens_permis(unsigned valeur) {
    using namespace cmd_moteur;
    for (const auto d : {azplus, azmoins, altplus, altmoins})
        sens_tapes.set(static_cast<unsigned>(d.valeur()) & 255U);
    rafales = rafales || frmaltazsuivi::timcompteur.regarde_marche();
    for (const unsigned propre : {0U, 1U, 2U, 3U, 4U, 8U, 12U})
        if (valeur == propre)
            return true;
    if (rafales && (valeur == 6 || valeur == 9))
        return true;
    for (const unsigned pas : {0U, 1U, 4U})
        if (sens_tapes.test((valeur - pas) & 255U))
            return true;
    return false;
}

std::string ecriture(int adresse, std::uint8_t valeur) {
    const auto quoi = std::to_string(adresse) + ":" + std::to_string(valeur);
    if (adresse == plateforme::registre_donnees) {
        if (!sens_permis(valeur))
            return "valeur hors des lignes, " + quoi;
    } else if (adresse == plateforme::registre_controle) {
        if (valeur != 1 && valeur != 11 && !(valeur == 0 && quitter))
            return "valeur de commande, " + quoi;
    } else {
        return "registre inconnu, " + quoi;
    }
    const bool prise = adresse == plateforme::registre_controle && valeur == 1 && panneau_moteur_charge();
    const bool permise = !auteur.empty() || (attend && (ordonnee || !minuteur_moteur().empty()));
    if (!permise && !prise)
        return "écriture par un acte qui n'est pas un mouvement, " + quoi + ", " + acte;
    return {};
}

bool rafale_d_un_jour() {
    using namespace cmd_moteur;
    constexpr double jour_ns = 86'400e9;
    const auto tempo = std::max(tempoaz, tempoalt).reel() * plateforme::ns_par_compte_entier;
    const auto suivi = tempopas.reel() * plateforme::ns_par_compte;
    return (rafales && 2 * entier16::maximum * tempo > jour_ns) || 2 * nbpassuivi.reel() * suivi > jour_ns;
}

// How a program with its delivered files may end: singular points of the formulas, numbers too large, nothing
// selected where a line is needed, a text beyond its bar's range, a year without almanac, settings saved from
// emptied fields.
constexpr std::string_view echecs =
    "division par zéro : angle d'un pas|division par zéro : config_equa.ini|division par zéro : passeconde|"
    "division par zéro : nombre d'impulsions|division par zéro : azimut|division par zéro : angle horaire|"
    "division par zéro : arc|racine d'un nombre négatif : arc|dépassement de capacité : |"
    "indice hors limites : lbObjets(-1)|indice hors limites : mapfiltre(-1)|"
    "indice hors limites : etoiles(-1)|indice hors limites : objets de la carte(-1)|"
    "indice hors limites : étoiles de la carte(-1)|valeur de propriété non valide : frmaltazpilot.HScroll|"
    "valeur de propriété non valide : frmequapilot.HScroll|"
    "valeur de propriété non valide : frmraquette.HScroll|fin de fichier dépassée : data/|";

std::string echec(const std::string& explication) {
    bool permis = false;
    for (std::size_t debut = 0, fin = 0; (fin = echecs.find('|', debut)) != echecs.npos; debut = fin + 1)
        permis = permis || explication.starts_with(echecs.substr(debut, fin - debut));
    const bool annee = explication.find("sg0.txt (") != std::string::npos;
    if (permis || annee || (fichiers && explication.find(" : ") != std::string::npos))
        return {};
    return "échec que rien ne permet, " + explication;
}

} // namespace singe::regles
