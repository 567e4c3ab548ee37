// The program on the real parallel port.
#include "platform/linux/horloge_systeme.h"
#include "principaux/port_reel.h"

int main(int argc, char** argv) {
    plateforme::horloge_systeme horloge;
    return lance_sur_le_port(argc, argv, horloge);
}
