// The full program on the bench: nothing needs to be connected.
#include "bench/fenetre_banc.h"
#include "platform/linux/attente_precise.h"
#include "platform/linux/horloge_systeme.h"
#include "platform/qt/fin.h"
#include "platform/qt/lance.h"
#include "sky/heure.h"

#include <optional>

int main(int argc, char** argv) {
    banc::horloge_banc horloge{plateforme::temps_universel,
                               [] { return int{general::decalageheure.valeur()}; }};
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    std::optional<banc::fenetre_banc> fenetre; // widgets need the application object first
    plateforme::qt::a_la_fin([&etabli] { etabli.cesse_d_enregistrer(); });
    return plateforme::qt::lance(argc, argv,
                                 {.port = etabli.port(),
                                  .horloge = horloge,
                                  .attente =
                                      [&](std::int64_t ns) {
                                          etabli.commence_attente(ns);
                                          attente.attend(ns);
                                      },
                                  .apres_cession = [&etabli] { etabli.cession_finie(); },
                                  .icone = "velmoria-banc",
                                  .ensuite = [&] { fenetre.emplace(etabli, horloge).show(); }});
}
