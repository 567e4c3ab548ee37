// The least a Qt program with a multi-document window can be, with a document or without: what the start-up
// is measured against. Tells on standard output when it is idle, and waits to be ended.
#include "oisif.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QMainWindow fenetre;
    auto* zone = new QMdiArea;
    fenetre.setCentralWidget(zone);
#ifdef AVEC_DOCUMENT
    fenetre.setWindowTitle("Document");
    zone->addSubWindow(new QWidget)->setWindowTitle("Document 1");
#endif
    fenetre.resize(1000, 733);
    fenetre.show();
    mesure::annonce_oisif(fenetre);
    return QApplication::exec();
}
