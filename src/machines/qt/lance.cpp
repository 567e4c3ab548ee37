#include "machines/qt/lance.h"

#include "base/fatale.h"
#include "frame/programme.h"
#include "machines/qt/boucle_qt.h"
#include "machines/qt/clavier.h"
#include "machines/qt/fin.h"
#include "machines/qt/guichet.h"
#include "machines/qt/images.h"
#include "machines/qt/nuit.h"
#include "machines/qt/preferences.h"
#include "machines/qt/style.h"
#include "machines/qt/vue_qt.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>

// Outside any namespace: Qt's rule for resources that live in a library.
static void prend_les_images() { Q_INIT_RESOURCE(images); }

namespace plateforme::qt {

namespace {

const char* variable(const char* nom) {
    const char* v = std::getenv(nom);
    return v ? v : "";
}

// Why no window can be opened, and what to do, in one sentence.
std::string sans_affichage() {
    const std::string greffon = variable("QT_QPA_PLATFORM");
    const std::string x11 = variable("DISPLAY");
    const std::string wayland = variable("WAYLAND_DISPLAY");
    if (!greffon.empty())
        return "l'affichage \"" + greffon + "\", demandé par la variable QT_QPA_PLATFORM, ne s'ouvre pas";
    if (x11.empty() && wayland.empty())
        return "pas d'affichage : lancez le programme depuis une session graphique";
    return "l'affichage \"" + (wayland.empty() ? x11 : wayland) +
           "\" ne s'ouvre pas : l'écran est fermé à ce compte, ou un greffon de Qt manque (sudo apt install "
           "libqt6gui6)";
}

// Qt's own way out is to abort, after lines in English. What it says of a display that does open is passed
// on.
QString dit_a_l_ouverture;

void ecoute(QtMsgType gravite, const QMessageLogContext&, const QString& texte) {
    if (gravite == QtFatalMsg) {
        std::fprintf(stderr, "velmoria : %s\n", sans_affichage().c_str());
        std::_Exit(1);
    }
    dit_a_l_ouverture += texte + "\n";
}

std::unique_ptr<QApplication> ouvre_affichage(int& argc, char** argv) {
    prepare();
    const auto avant = qInstallMessageHandler(ecoute);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(avant);
    // From here on Qt looks for its plugins in its own folder alone: nothing of the kind is delivered beside
    // the program, whose folder may be anybody's.
    QCoreApplication::removeLibraryPath(QCoreApplication::applicationDirPath());
    std::fputs(std::exchange(dit_a_l_ouverture, {}).toLocal8Bit().constData(), stderr);
    habille();
    return application;
}

} // namespace

seance::seance(int argc, char** argv, composition c) : argc_(argc), c_(std::move(c)) {
    application_ = ouvre_affichage(argc_, argv);
    prend_les_images();
    if (c_.apparence.positions_initiales)
        oublie_les_places();
    ecoute_la_touche_de_nuit(c_.apparence.nuit);
    ecoute_le_clavier();
    QApplication::setApplicationName("Velmoria");
    QApplication::setWindowIcon(icone_programme(c_.icone));

    boucle_ = std::make_unique<boucle_qt>(c_.attente, c_.apres_cession, c_.au_repos);
    vue_ = std::make_unique<vue_qt>();
    auto donnees = c_.donnees;
    if (donnees.empty())
        donnees = std::filesystem::path{QCoreApplication::applicationDirPath().toStdString()} / "data";
    const auto aide = std::filesystem::absolute(donnees).lexically_normal().parent_path() / "aide";
    courante = {&c_.port, &c_.horloge, boucle_.get(), donnees, aide};
    shell::vue_courante = vue_.get();
    base::installe_gestionnaire(echoue);
    programme::construit();
}

seance::~seance() = default;

void seance::demarre() {
    const auto avertit = [this](const std::string& avis) {
        if (avis.empty())
            return;
        std::fprintf(stderr, "%s\n", avis.c_str());
        vue_->message(avis);
    };
    avertit(c_.avis);
    programme::demarre();
    if (c_.planetarium) {
        guichet_ = std::make_unique<guichet>(*c_.planetarium);
        avertit(guichet_->faute());
    }
    if (c_.ensuite)
        c_.ensuite();
}

int lance(int argc, char** argv, composition c) {
    seance s{argc, argv, std::move(c)};
    s.demarre();
    fin(QApplication::exec());
}

int refuse(int argc, char** argv, const std::string& raison) {
    std::fprintf(stderr, "%s\n", raison.c_str());
    const auto application = ouvre_affichage(argc, argv);
    vue_qt{}.message(raison);
    return 1;
}

} // namespace plateforme::qt
