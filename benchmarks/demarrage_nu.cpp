// The least a Qt program with a multi-document window can be: what the start-up is measured against. Tells on
// standard output when it is idle, and waits to be ended.
#include "oisif.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QMainWindow fenetre;
    fenetre.setCentralWidget(new QMdiArea);
    fenetre.resize(1000, 733);
    fenetre.show();
    mesure::annonce_oisif(fenetre);
    return QApplication::exec();
}
