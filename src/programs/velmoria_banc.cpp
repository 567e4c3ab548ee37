// The full program on the bench: nothing needs to be connected.
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/fin.h"
#include "programs/options_fenetres.h"
#include "sky/heure.h"

#include <optional>

int main(int argc, char** argv) {
    plateforme::qt::apparence apparence;
    const options::programme programme{
        .nom = "velmoria-banc",
        .role = "Le programme entier sur un banc simulé : rien n'a besoin d'être branché.",
        .options = options::des_fenetres(apparence)};
    if (const auto statut = options::lit(programme, argc, argv).statut)
        return *statut;
    banc::horloge_banc horloge{plateforme::temps_universel,
                               [] { return int{general::decalageheure.valeur()}; }};
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    std::optional<banc::fenetre_banc> fenetre; // widgets need the application object first
    plateforme::qt::a_la_fin([&etabli] { etabli.cesse_d_enregistrer(); });
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.apparence = apparence;
    composition.ensuite = [&] { fenetre.emplace(etabli, horloge).show(); };
    return plateforme::qt::lance(1, argv, std::move(composition));
}
