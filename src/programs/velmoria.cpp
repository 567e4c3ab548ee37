// The program on the real parallel port.
#include "machines/linux/horloge_systeme.h"
#include "programs/port_reel.h"

int main(int argc, char** argv) {
    plateforme::horloge_systeme horloge;
    return lance_sur_le_port(argc, argv, horloge);
}
