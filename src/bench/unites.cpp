#include "bench/unites.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "bench/monture.h"
#include "fields/frminterface_champs.h"
#include "seam/plateforme.h"

#include <array>
#include <charconv>

namespace banc {

namespace {

// The first values of a settings file; zeros for what it does not hold. A bench must not end a run by
// looking.
template <std::size_t N> std::array<double, N> premieres(const char* nom) {
    std::array<double, N> v{};
    std::error_code erreur;
    const auto chemin = plateforme::fichier_donnees(nom);
    if (!std::filesystem::is_regular_file(chemin, erreur))
        return v;
    valeurs::lecteur f{chemin};
    for (auto& x : v) {
        if (f.fini())
            break;
        const auto t = f.texte();
        std::from_chars(t.data(), t.data() + t.size(), x); // a figure beyond a double stays 0
    }
    return v;
}

} // namespace

unites unites_du_mode() {
    if (frminterface::barequa.regarde().visible) {
        const auto [pas_ad, pas_dec, r_ad, r_dec] = premieres<4>("config_equa.ini");
        return {unite(r_ad, pas_ad), unite(r_dec, pas_dec)};
    }
    if (frminterface::baraltaz.regarde().visible) {
        const auto [degre, min, latdeg, latmin, pas_az, pas_alt, r_alt, r_az] =
            premieres<8>("config_altaz.ini");
        return {unite(base::arrondi(r_az), pas_az), unite(base::arrondi(r_alt), pas_alt)};
    }
    return {};
}

} // namespace banc
