// The whole program, started as its main files start it, with word of when it is idle.
#include "bench/port_simule.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/lance.h"
#include "machines/qt/vue_qt.h"
#include "oisif.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::attente_precise attente;
    plateforme::horloge_systeme horloge;
    plateforme::qt::seance s{argc,
                             argv,
                             {.port = port,
                              .horloge = horloge,
                              .attente = [&](std::int64_t ns) { attente.attend(ns); },
                              .donnees = DONNEES}};
    s.demarre();
    mesure::annonce_oisif(*s.vue().principale());
    return QApplication::exec();
}
