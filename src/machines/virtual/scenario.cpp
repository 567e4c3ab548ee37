#include "machines/virtual/scenario.h"

#include "base/fatale.h"
#include "base/fichier.h"
#include "machines/virtual/meneur.h"
#include "machines/virtual/mots.h"
#include "store/panneau.h"

#include <ostream>

namespace plateforme {

namespace {

struct arret_fatal {
    base::cause cause;
    std::string detail;
};

// Plays up to the end of the process, if it comes. Gives the exit status.
int joue_vivant(meneur& m, const partie& p) {
    try {
        while (m.avance_d_une_ligne()) {
        }
        return 0;
    } catch (const fin_du_processus&) {
        p.sortie << "fin\n";
        m.suit_en_cendres();
        return 0;
    } catch (const arret_fatal& a) {
        p.sortie << "fatale " << base::libelle(a.cause) << '\n';
        p.explications << p.nom << ':' << m.ligne() << ": " << base::libelle(a.cause) << " : " << a.detail
                       << '\n';
        m.suit_en_cendres();
        return 3;
    }
}

} // namespace

int joue(const partie& p) {
    base::installe_gestionnaire([](base::cause c, const std::string& detail) {
        shell::gele();
        throw arret_fatal{c, detail};
    });
    int ligne = 0;
    const auto explique = [&](const std::string& raison) {
        p.explications << p.nom << ':' << ligne << ": " << raison << '\n';
        return 1;
    };
    try {
        meneur m{p};
        try {
            return joue_vivant(m, p);
        } catch (...) {
            ligne = m.ligne();
            throw;
        }
    } catch (const fin_du_scenario&) {
        return 0;
    } catch (const ligne_incomprise& l) {
        return explique(l.raison);
    } catch (const attente_decue& a) {
        return explique(a.raison);
    } catch (const mouvement_sans_fin&) {
        return explique("un mouvement continue sans que rien de prévu l'arrête");
    } catch (const std::filesystem::filesystem_error& e) {
        return explique("dossier temporaire : " + e.path1().string() + " : " +
                        base::raison(e.code().value()));
    } catch (const arret_fatal& a) {
        return explique(a.detail); // while the scene was being set
    }
}

} // namespace plateforme
