// The program on the real parallel port.
#include "platform/linux/horloge_systeme.h"
#include "platform/qt/lance.h"
#include "principaux/provisoire.h"

int main(int argc, char** argv) {
    provisoire::port_absent port;
    plateforme::horloge_systeme horloge;
    return plateforme::qt::lance(argc, argv,
                                 {.port = port, .horloge = horloge, .attente = provisoire::attend});
}
