// The program on the real parallel port, with the clock of an equivalent night in the almanac's years.
#include "platform/horloge_equivalente.h"
#include "platform/linux/horloge_systeme.h"
#include "principaux/port_reel.h"
#include "sky/heure.h"

int main(int argc, char** argv) {
    plateforme::horloge_equivalente horloge{plateforme::temps_universel,
                                            [] { return int{general::decalageheure.valeur()}; }};
    return lance_sur_le_port(argc, argv, horloge);
}
