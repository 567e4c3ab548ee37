#include "store/registre.h"

#include <charconv>

namespace shell {

panneau* registre::trouve_panneau(std::string_view nom) const {
    for (auto* p : panneaux)
        if (p->nom() == nom)
            return p;
    return nullptr;
}

controle* registre::trouve_controle(std::string_view panneau, std::string_view nom) const {
    const auto* p = trouve_panneau(panneau);
    if (!p)
        return nullptr;
    for (auto* c : p->controles())
        if (c->nom() == nom)
            return c;
    return nullptr;
}

bool registre::lit_variable(std::string_view nom, std::string& valeur) const {
    int place = -1;
    const auto ouvre = nom.find('(');
    if (ouvre != std::string_view::npos) {
        const auto* fin = nom.data() + nom.size() - 1;
        const auto lu = std::from_chars(nom.data() + ouvre + 1, fin, place);
        if (*fin != ')' || lu.ptr != fin || lu.ec != std::errc{} || place < 0)
            return false;
    }
    const auto base = nom.substr(0, ouvre);
    for (const auto& v : variables) {
        if (v.nom != base || (v.taille < 0) != (place < 0) || (place >= 0 && place >= v.taille))
            continue;
        valeur = v.lit(place);
        return true;
    }
    return false;
}

} // namespace shell
