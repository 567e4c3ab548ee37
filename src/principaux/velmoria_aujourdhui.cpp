// The program on the real parallel port, with the clock of an equivalent night in the almanac's years.
#include "platform/linux/horloge_systeme.h"
#include "principaux/port_reel.h"

int main(int argc, char** argv) {
    plateforme::horloge_systeme horloge;
    return lance_sur_le_port(argc, argv, horloge);
}
