// The program on the real parallel port, with the clock of an equivalent night in the almanac's years.
#include "machines/linux/horloge_systeme.h"
#include "programs/port_reel.h"
#include "sky/heure.h"
#include "sky/horloge_equivalente.h"

int main(int argc, char** argv) {
    plateforme::horloge_equivalente horloge{plateforme::temps_systeme(),
                                            [] { return int{general::decalageheure.valeur()}; }};
    return lance_sur_le_port({.nom = "velmoria-aujourdhui",
                              .role = "Pilote un télescope par le port parallèle, sous le ciel de ce soir."},
                             argc, argv, horloge);
}
