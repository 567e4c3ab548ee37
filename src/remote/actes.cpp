#include "remote/actes.h"

#include "chart/frmCercle.h"
#include "drive/cmd_moteur.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapilot_champs.h"
#include "remote/telescope.h"
#include "slewing/etat_pointage.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace planetarium {

namespace {

/// What a client presses on a pilot panel.
struct pupitre {
    shell::panneau& fiche;
    std::array<shell::champ_bouton*, 4> commandes; // 1 to 4 of `cmdsens`
    shell::champ_bouton& arret;
    shell::champ_curseur& az;
    shell::champ_curseur& alt;
};
const pupitre equatorial{frmequapilot::fiche,
                         {&frmequapilot::deplacement.cmdad, &frmequapilot::deplacement.cmdag,
                          &frmequapilot::deplacement.cmdhh, &frmequapilot::deplacement.cmdhb},
                         frmequapilot::deplacement.cmddstop,
                         frmequapilot::ascension.curseur,
                         frmequapilot::declinaison.curseur};
const pupitre altazimutal{frmaltazpilot::fiche,
                          {&frmaltazpilot::deplacement.cmdad, &frmaltazpilot::deplacement.cmdag,
                           &frmaltazpilot::deplacement.cmdhh, &frmaltazpilot::deplacement.cmdhb},
                          frmaltazpilot::deplacement.cmddstop,
                          frmaltazpilot::azimut.curseur,
                          frmaltazpilot::altitude.curseur};

struct demande {
    numero qui = 0;
    std::optional<cote> jog; // none: the slew
    general::place cible;
};
std::optional<demande> demandee;
std::optional<demande> en_cours;

const pupitre& pupitre_du_mode() { return mode() == monture::equatoriale ? equatorial : altazimutal; }

std::string refus_commun() {
    if (shell::est_gele())
        return "Le programme est arrêté.";
    if (mode() == monture::aucune)
        return "Choisissez d'abord le mode de la monture.";
    if (raquette())
        return "La raquette a la main : revenez au mode informatique.";
    if (pointe())
        return "Un pointage est en cours.";
    return {};
}

std::string refus_du_pilotage() {
    auto refus = refus_commun();
    if (refus.empty() && !pupitre_du_mode().fiche.est_visible())
        refus = "Ouvrez le panneau de pilotage.";
    return refus;
}

std::string refus_de_designer() {
    auto refus = refus_commun();
    if (refus.empty() && mode() == monture::altazimutale)
        refus = "Monture altazimutale : alignez et pointez au panneau du programme.";
    return refus;
}

void presse_l_arret() {
    const auto& p = pupitre_du_mode();
    if (cmd_moteur::jogs > 0 && p.fiche.est_charge())
        p.arret.clic();
}

// The direction line of a side: on an equatorial mount as the slew raises it, on the other as the position
// counts it, whose line is 0 until it has been initialised.
bool leve(cote c) {
    const bool altitude = c == cote::nord || c == cote::sud;
    const bool plus = c == cote::nord || c == cote::est;
    bool ligne_plus = false;
    if (mode() == monture::equatoriale)
        ligne_plus = altitude ? static_cast<bool>(pointing::invpointdec) : !pointing::invpointad;
    else
        ligne_plus = (altitude ? cmd_moteur::altplus : cmd_moteur::azplus) != 0;
    return plus == ligne_plus;
}

void jogue(cote c) {
    const auto commande = cmd_moteur::commande_du_sens(c == cote::nord || c == cote::sud, leve(c));
    pupitre_du_mode().commandes[static_cast<std::size_t>(commande.valeur() - 1)]->clic();
}

// To whole units of the catalogues, right ascension from 0 to 14399.
std::pair<double, double> unites(general::place p) {
    return {std::fmod(std::nearbyint(p.ad * 600), 14400), std::nearbyint(p.dec * 600)};
}

// As the equatorial panel's buttons of the chart do: its labels are the ones to show the place.
void designe(void (*operation)(double, double), general::place p) {
    pointing::panneaualtaz = false;
    const auto [ad, dec] = unites(p);
    operation(ad, dec);
}

// Makes what was asked for the act under way, as long as it lives.
struct en_scene {
    en_scene() { en_cours = std::exchange(demandee, std::nullopt); }
    ~en_scene() { en_cours.reset(); }
    en_scene(const en_scene&) = delete;
    en_scene& operator=(const en_scene&) = delete;
};

bool rien_ne_bouge() { return !en_cours && cmd_moteur::jogs == 0 && !pointage_en_cours(); }

} // namespace

bool pointe() {
    const auto pointage = [](const std::optional<demande>& d) { return d && !d->jog; };
    return pointage_en_cours() || pointage(demandee) || pointage(en_cours);
}

std::string demande_jog(numero qui, cote c) {
    auto refus = refus_du_pilotage();
    if (refus.empty()) {
        demandee = demande{qui, c, {}};
        presse_l_arret();
    }
    return refus;
}

std::string demande_pointage(general::place j2000) {
    auto refus = refus_de_designer();
    if (refus.empty()) {
        demandee = demande{0, std::nullopt, j2000};
        presse_l_arret();
    }
    return refus;
}

std::string aligne(general::place j2000) {
    auto refus = refus_de_designer();
    if (refus.empty())
        designe(frmCercle::aligne, j2000);
    return refus;
}

std::string regle_vitesse(int classe) {
    auto refus = refus_du_pilotage();
    if (refus.empty()) {
        pupitre_du_mode().az.regle(classe);
        pupitre_du_mode().alt.regle(classe);
    }
    return refus;
}

void arrete(bool tout) {
    if (demandee && (tout || demandee->jog))
        demandee.reset();
    presse_l_arret();
    if (tout && pointage_en_cours())
        frmDepl::cmstoppointage.clic();
}

void abandonne(numero qui) {
    const auto sien = [qui](const std::optional<demande>& d) { return d && d->jog && d->qui == qui; };
    if (sien(demandee))
        demandee.reset();
    if (sien(en_cours))
        presse_l_arret();
}

void commence() {
    while (demandee && rien_ne_bouge() && !shell::est_gele()) {
        const auto d = *demandee;
        const en_scene ici;
        // What was possible when it was asked for may no longer be.
        const bool possible = d.jog ? pupitre_du_mode().fiche.est_visible() && !raquette()
                                    : mode() == monture::equatoriale && !raquette();
        if (possible && d.jog)
            jogue(*d.jog);
        else if (possible)
            designe([](double ad, double dec) { frmCercle::pointe(ad, dec, "planétarium"); }, d.cible);
    }
}

} // namespace planetarium
