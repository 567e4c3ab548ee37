#include "programs/port_reel.h"

#include "machines/linux/attente_precise.h"
#include "machines/linux/droits.h"
#include "machines/linux/port_direct.h"
#include "machines/qt/lance.h"
#include "programs/option_planetarium.h"
#include "programs/options_fenetres.h"

int lance_sur_le_port(options::programme programme, int argc, char** argv, plateforme::horloge& horloge) {
    plateforme::qt::apparence apparence;
    std::optional<plateforme::qt::adresse_du_guichet> planetarium;
    for (auto& o : options::des_fenetres(apparence))
        programme.options.push_back(std::move(o));
    programme.options.push_back(option_planetarium(planetarium));
    if (const auto statut = options::lit(programme, argc, argv).statut)
        return *statut;
    // Nothing else may come before these three: the capability must be gone before any window or file is
    // opened.
    const auto prise = plateforme::prend_port();
    const bool libre = !prise.reel || plateforme::verrouille_port();
    plateforme::abandonne_droits();

    const std::string avis =
        libre ? plateforme::explication(prise) : std::string{plateforme::message_port_occupe};
    if (!libre)
        return plateforme::qt::refuse(1, argv, avis);
    plateforme::attente_precise attente;
    return plateforme::qt::lance(1, argv,
                                 {.port = *prise.acces,
                                  .horloge = horloge,
                                  .attente = [&attente](std::int64_t ns) { attente.attend(ns); },
                                  .avis = avis,
                                  .apparence = apparence,
                                  .planetarium = planetarium});
}
