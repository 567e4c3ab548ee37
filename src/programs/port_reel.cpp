#include "programs/port_reel.h"

#include "machines/linux/attente_precise.h"
#include "machines/linux/droits.h"
#include "machines/linux/port_direct.h"
#include "machines/qt/lance.h"

#include <cstdio>

int lance_sur_le_port(int argc, char** argv, plateforme::horloge& horloge) {
    // Nothing may come before these three: the capability must be gone before any window or file is opened.
    const auto prise = plateforme::prend_port();
    const bool libre = !prise.reel || plateforme::verrouille_port();
    plateforme::abandonne_droits();

    const std::string avis =
        libre ? plateforme::explication(prise) : std::string{plateforme::message_port_occupe};
    if (!avis.empty())
        std::fprintf(stderr, "%s\n", avis.c_str());
    if (!libre)
        return plateforme::qt::refuse(argc, argv, avis);
    plateforme::attente_precise attente;
    return plateforme::qt::lance(argc, argv,
                                 {.port = *prise.acces,
                                  .horloge = horloge,
                                  .attente = [&attente](std::int64_t ns) { attente.attend(ns); },
                                  .avis = avis});
}
