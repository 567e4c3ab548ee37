#include "regles.h"

#include "drive/etat_moteur.h"
#include "piloting/frmaltazpilot_champs.h"
#include "piloting/frmequapilot_champs.h"
#include "platform/plateforme.h"
#include "tracking/frmaltazsuivi_champs.h"

#include <algorithm>
#include <string_view>

namespace singe {

namespace {

// Motions and mode commands, and what starts them. Everything that yields may run an order or a timer too.
constexpr std::string_view auteurs[] = {"frminterface.barequa(1)",
                                        "frminterface.barequa(2)",
                                        "frminterface.barequa(3)",
                                        "frminterface.baraltaz(1)",
                                        "frminterface.baraltaz(2)",
                                        "frminterface.baraltaz(3)",
                                        "frminterface.baraltaz(5)",
                                        "frminterface.bargeneral(1)",
                                        "frminterface.bargeneral(2)",
                                        "frminterface.Quitter",
                                        "frminterface.mnusuivi",
                                        "frminterface.mnupilotageequa",
                                        "frminterface.mnupilotagealtaz",
                                        "frmaltazpilot.cmdag",
                                        "frmaltazpilot.cmdad",
                                        "frmaltazpilot.cmdhb",
                                        "frmaltazpilot.cmdhh",
                                        "frmequapilot.cmdag",
                                        "frmequapilot.cmdad",
                                        "frmequapilot.cmdhb",
                                        "frmequapilot.cmdhh",
                                        "frmaltazsuivi.cmdraquette",
                                        "frmconfig.cmdaltencoding",
                                        "frmconfig.cmdazencoding",
                                        "frmconfig.cmdbacklash",
                                        "frmequaconfig.cmdbacklash",
                                        "frmaltazpointage.lbObjets",
                                        "frmequapointage.lbObjets",
                                        "frmequapointage.bOK"};

bool ecrit(const std::string& ligne) {
    if (ligne == "demarre" || ligne.starts_with("avance ") || ligne.starts_with("menu "))
        return true;
    const auto nom = ligne.substr(std::min(ligne.find(' ') + 1, ligne.size()));
    return std::any_of(std::begin(auteurs), std::end(auteurs), [&nom](std::string_view a) {
        return nom == a || nom.starts_with(std::string{a} + " ");
    });
}

// Their load takes the port for the computer.
bool panneau_moteur_charge() {
    return frmaltazpilot::fiche.est_charge() || frmequapilot::fiche.est_charge() ||
           frmaltazsuivi::fiche.est_charge();
}

} // namespace

void regles::ligne(const std::string& l) {
    ligne_ = l;
    peut_ecrire_ = ecrit(l);
    quitter_ = quitter_ || l.find("frminterface.Quitter") != std::string::npos;
    fichiers_ = fichiers_ || l.starts_with("fichier ");
}

// Direction value alone, or with one step line raised above it.
bool regles::sens_permis(unsigned valeur) {
    using namespace cmd_moteur;
    for (const auto d : {azplus, azmoins, altplus, altmoins})
        sens_tapes_.set(static_cast<unsigned>(d.valeur()) & 255U);
    rafales_ = rafales_ || frmaltazsuivi::timcompteur.regarde_marche();
    for (const unsigned propre : {0U, 1U, 2U, 3U, 4U, 8U, 12U})
        if (valeur == propre)
            return true;
    if (rafales_ && (valeur == 6 || valeur == 9))
        return true;
    for (const unsigned pas : {0U, 1U, 4U})
        if (sens_tapes_.test((valeur - pas) & 255U))
            return true;
    return false;
}

std::string regles::ecriture(int adresse, std::uint8_t valeur) {
    const auto quoi = std::to_string(adresse) + ":" + std::to_string(valeur);
    if (adresse == plateforme::registre_donnees) {
        if (!sens_permis(valeur))
            return "valeur hors des lignes, " + quoi;
    } else if (adresse == plateforme::registre_controle) {
        if (valeur != 1 && valeur != 11 && !(valeur == 0 && quitter_))
            return "valeur de commande, " + quoi;
    } else {
        return "registre inconnu, " + quoi;
    }
    const bool prise = adresse == plateforme::registre_controle && valeur == 1 && panneau_moteur_charge();
    if (!peut_ecrire_ && !prise)
        return "écriture par un acte qui n'est pas un mouvement, " + quoi + ", " + ligne_;
    return {};
}

bool regles::rafale_d_un_jour() const {
    using namespace cmd_moteur;
    constexpr double jour_ns = 86'400e9;
    const auto tempo = std::max(tempoaz, tempoalt).reel() * plateforme::ns_par_compte_entier;
    const auto suivi = tempopas.reel() * plateforme::ns_par_compte;
    return (rafales_ && 2 * entier16::maximum * tempo > jour_ns) || 2 * nbpassuivi.reel() * suivi > jour_ns;
}

// Settings saved from emptied fields can be cut short of a number, never of a value; only the almanac's years
// and the emptied notes are missed by a person's own doing.
std::string regles::echec(const std::string& explication) const {
    const auto dit = [&explication](std::string_view mot) {
        return explication.find(mot) != std::string::npos;
    };
    if (!dit(" : "))
        return "échec sans détail, " + explication;
    const bool manque =
        dit("fichier introuvable") || dit("fin de fichier dépassée") || dit("image illisible");
    if (manque && !fichiers_ && !dit("/sg0.txt") && !dit("notes.txt"))
        return "fichier livré devenu illisible, " + explication;
    return {};
}

} // namespace singe
