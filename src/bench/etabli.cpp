#include "bench/etabli.h"

namespace banc {

etabli::etabli(std::function<std::int64_t()> maintenant) : maintenant_(std::move(maintenant)) {}

etabli::~etabli() { port_.observe(nullptr); }

bool etabli::enregistre(const std::filesystem::path& chemin) {
    if (!vcd_.ouvre(chemin, maintenant_(), port_.donnees(), port_.controle()))
        return false;
    port_.observe(this);
    return true;
}

bool etabli::cesse_d_enregistrer() {
    port_.observe(nullptr);
    return vcd_.ferme();
}

void etabli::lignes(std::uint8_t donnees, std::uint8_t controle) {
    vcd_.note(maintenant_(), donnees, controle);
}

} // namespace banc
