// The program on the real parallel port.
#include "machines/linux/horloge_systeme.h"
#include "programs/port_reel.h"

int main(int argc, char** argv) {
    plateforme::horloge_systeme horloge;
    return lance_sur_le_port(
        {.nom = "velmoria", .role = "Pilote un télescope par le port parallèle, à l'heure de l'ordinateur."},
        argc, argv, horloge);
}
