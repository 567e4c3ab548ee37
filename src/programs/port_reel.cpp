#include "programs/port_reel.h"

#include "machines/linux/port_direct.h"
#include "machines/linux/temps_reel.h"
#include "machines/qt/lance.h"
#include "programs/option_planetarium.h"
#include "programs/options_fenetres.h"

#include <cstdio>
#include <cstdlib>

namespace {

// Writes the address into `voulue`.
options::option option_port(std::optional<int>& voulue) {
    return {"--port", "ADRESSE",
            "adresse du port parallèle : 0x278, 0x378 (888), 0x3bc, ou une que le noyau indique",
            [&voulue](std::string_view texte) -> std::string {
                voulue = plateforme::lit_adresse(std::string{texte});
                return voulue ? "" : "une adresse s'écrit 888 ou 0x378";
            }};
}

} // namespace

int lance_sur_le_port(options::programme programme, int argc, char** argv, plateforme::horloge& horloge) {
    plateforme::qt::apparence apparence;
    std::optional<plateforme::qt::adresse_du_guichet> planetarium;
    for (auto& o : options::des_fenetres(apparence))
        programme.options.push_back(std::move(o));
    programme.options.push_back(option_planetarium(planetarium));
    std::optional<int> voulue;
    programme.options.push_back(option_port(voulue));
    if (const auto statut = options::lit(programme, argc, argv).statut)
        return *statut;
    // Nothing else may come before these three: the rights must be gone before any window or file is opened.
    const auto prise = plateforme::prend_port(voulue);
    plateforme::attente_prioritaire attente;
    if (!plateforme::abandonne_droits()) {
        std::fprintf(stderr, "%s\n", plateforme::message_droits_gardes.data());
        return 1;
    }
    // Who holds a port runs no code from a folder that the environment names.
    unsetenv("QT_PLUGIN_PATH");
    unsetenv("QT_QPA_PLATFORM_PLUGIN_PATH");

    if (!prise.choix.avis.empty())
        std::fprintf(stderr, "%s\n", prise.choix.avis.c_str());
    const std::string avis = plateforme::explication(prise);
    if (!prise.permise())
        return plateforme::qt::refuse(1, argv, avis);
    return plateforme::qt::lance(1, argv,
                                 {.port = *prise.acces,
                                  .horloge = horloge,
                                  .attente = [&attente](std::int64_t ns) { attente.attend(ns); },
                                  .apres_cession = [&attente] { attente.cession_finie(); },
                                  .au_repos = [&attente] { attente.repos(); },
                                  .avis = avis,
                                  .apparence = apparence,
                                  .planetarium = planetarium});
}
