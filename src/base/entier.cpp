#include "base/entier.h"

#include "base/nombre.h"

namespace base {

void deborde(double x, const lieu& ou, int bits) {
    fatale(cause::depassement, ou.devant() + (std::isfinite(x) ? texte(x) : "infini") +
                                   " hors d'un entier de " + std::to_string(bits) + " bits");
}

} // namespace base
