// The full program on the bench: nothing needs to be connected.
#include "machines/linux/droits.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/linux/temps_reel.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/fin.h"
#include "programs/option_planetarium.h"
#include "programs/options_fenetres.h"
#include "sky/heure.h"

#include <cstdio>
#include <optional>

int main(int argc, char** argv) {
    plateforme::qt::apparence apparence;
    std::optional<plateforme::qt::adresse_du_guichet> planetarium;
    std::string enregistrement;
    options::programme programme{
        .nom = "velmoria-banc",
        .role = "Le programme entier sur un banc simulé : rien n'a besoin d'être branché.",
        .options = options::des_fenetres(apparence)};
    programme.options.push_back(option_planetarium(planetarium));
    programme.options.push_back({"--enregistre", "FICHIER",
                                 "enregistre les lignes du port dès le début (VCD)",
                                 [&enregistrement](std::string_view chemin) {
                                     enregistrement = chemin;
                                     return std::string{};
                                 }});
    if (const auto statut = options::lit(programme, argc, argv).statut)
        return *statut;
    plateforme::attente_prioritaire attente;
    if (!plateforme::abandonne_droits()) {
        std::fprintf(stderr, "%s\n", plateforme::message_droits_gardes.data());
        return 1;
    }
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    banc::etabli etabli{plateforme::horloge_monotone};
    std::optional<banc::fenetre_banc> fenetre; // widgets need the application object first
    plateforme::qt::a_la_fin([&etabli] { etabli.cesse_d_enregistrer(); });
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.apparence = apparence;
    composition.planetarium = planetarium;
    composition.ensuite = [&] {
        fenetre.emplace(etabli, horloge, [&] { return plateforme::libelle(attente.dernier()); }).show();
        if (!enregistrement.empty())
            fenetre->enregistre_dans(QString::fromStdString(enregistrement));
    };
    return plateforme::qt::lance(1, argv, std::move(composition));
}
