#include "machines/qt/lance.h"

#include "base/fatale.h"
#include "frame/programme.h"
#include "machines/qt/boucle_qt.h"
#include "machines/qt/fin.h"
#include "machines/qt/images.h"
#include "machines/qt/style.h"
#include "machines/qt/vue_qt.h"

#include <QApplication>

// Outside any namespace: Qt's rule for resources that live in a library.
static void prend_les_images() { Q_INIT_RESOURCE(images); }

namespace plateforme::qt {

seance::seance(int argc, char** argv, composition c) : argc_(argc), c_(std::move(c)) {
    prepare();
    application_ = std::make_unique<QApplication>(argc_, argv);
    prend_les_images();
    habille();
    QApplication::setApplicationName("Velmoria");
    QApplication::setWindowIcon(icone_programme(c_.icone));

    boucle_ = std::make_unique<boucle_qt>(c_.attente, c_.apres_cession);
    vue_ = std::make_unique<vue_qt>();
    auto donnees = c_.donnees;
    if (donnees.empty())
        donnees = std::filesystem::path{QCoreApplication::applicationDirPath().toStdString()} / "data";
    const auto aide = std::filesystem::absolute(donnees).lexically_normal().parent_path() / "aide";
    courante = {&c_.port, &c_.horloge, boucle_.get(), vue_.get(), donnees, aide};
    base::installe_gestionnaire(echoue);
    programme::construit();
}

seance::~seance() = default;

void seance::demarre() {
    if (!c_.avis.empty())
        vue_->message(c_.avis);
    programme::demarre();
    if (c_.ensuite)
        c_.ensuite();
}

int lance(int argc, char** argv, composition c) {
    seance s{argc, argv, std::move(c)};
    s.demarre();
    fin(QApplication::exec());
}

int refuse(int argc, char** argv, const std::string& raison) {
    prepare();
    QApplication application{argc, argv};
    habille();
    vue_qt{}.message(raison);
    return 1;
}

} // namespace plateforme::qt
