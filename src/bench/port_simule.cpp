#include "bench/port_simule.h"

#include <algorithm>

namespace banc {
namespace {

using plateforme::registre_controle;
using plateforme::registre_donnees;

constexpr unsigned lignes_controle = 15;
constexpr unsigned marque_controle = 256;

} // namespace

port_simule::port_simule(monture& m) : monture_(m), anneau_(memoire) {}

void port_simule::ecrit(int adresse, std::uint8_t valeur) {
    unsigned marque = 0;
    if (adresse == registre_donnees) {
        donnees_ = valeur;
        monture_.recoit(valeur);
    } else if (adresse == registre_controle) {
        controle_ = static_cast<std::uint8_t>(valeur & lignes_controle);
        marque = marque_controle;
    } else {
        return;
    }
    anneau_[total_ % memoire] = static_cast<std::uint16_t>(valeur | marque);
    ++total_;
    if (temoin_)
        temoin_->lignes(donnees(), controle());
}

std::uint8_t port_simule::lit(int adresse) {
    if (adresse == registre_donnees)
        return donnees();
    return adresse == registre_controle ? controle() : 255;
}

bool port_simule::presente(int code) {
    if (code < 0 || code > 255)
        return false;
    const auto c = static_cast<unsigned>(code);
    touches_ = static_cast<std::uint8_t>(c & lignes_controle);
    tire_ = static_cast<std::uint8_t>(c & ~lignes_controle);
    if (temoin_)
        temoin_->lignes(donnees(), controle());
    return true;
}

std::vector<ecriture> port_simule::dernieres(std::size_t n) const {
    const std::uint64_t gardees = std::min<std::uint64_t>({n, total_ - oubliees_, memoire});
    std::vector<ecriture> resultat;
    resultat.reserve(gardees);
    for (std::uint64_t i = total_ - gardees; i < total_; ++i) {
        const unsigned e = anneau_[i % memoire];
        resultat.push_back({(e & marque_controle) ? registre_controle : registre_donnees,
                            static_cast<std::uint8_t>(e & 255U)});
    }
    return resultat;
}

} // namespace banc
