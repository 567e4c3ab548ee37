// The whole program, started as its main files start it, with word of when it is idle.
#include "oisif.h"
#include "platform/linux/horloge_systeme.h"
#include "platform/qt/lance.h"
#include "platform/qt/vue_qt.h"
#include "principaux/provisoire.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    provisoire::port_muet port;
    plateforme::horloge_systeme horloge;
    plateforme::qt::seance s{
        argc, argv, {.port = port, .horloge = horloge, .attente = provisoire::attend, .donnees = DONNEES}};
    s.demarre();
    mesure::annonce_oisif(*s.vue().principale());
    return QApplication::exec();
}
