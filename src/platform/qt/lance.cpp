#include "platform/qt/lance.h"

#include "base/fatale.h"
#include "platform/qt/boucle_qt.h"
#include "platform/qt/fin.h"
#include "platform/qt/style.h"
#include "platform/qt/vue_qt.h"
#include "shell/programme.h"

#include <QApplication>
#include <QIcon>

// Called out of a namespace: Qt's rule for resources that live in a library.
static void prend_les_images() { Q_INIT_RESOURCE(images); }

namespace plateforme::qt {

int lance(int argc, char** argv, const composition& c) {
    prepare();
    QApplication application{argc, argv};
    prend_les_images();
    habille(application);
    QApplication::setWindowIcon(QIcon{QString{":/%1.png"}.arg(c.icone)});
    QApplication::setApplicationName("Velmoria");

    vue_qt vue;
    boucle_qt boucle{c.attente, c.apres_cession};
    courante = {&c.port, &c.horloge, &boucle, &vue,
                std::filesystem::path{QCoreApplication::applicationDirPath().toStdString()} / "data"};
    base::installe_gestionnaire(echoue);
    programme::construit();
    if (!c.avis.empty())
        vue.message(c.avis);
    programme::demarre();
    if (c.ensuite)
        c.ensuite();
    fin(QApplication::exec());
}

int refuse(int argc, char** argv, const std::string& raison) {
    prepare();
    QApplication application{argc, argv};
    habille(application);
    vue_qt{}.message(raison);
    return 1;
}

} // namespace plateforme::qt
