// A redraw of the sky chart with the delivered stars, the figures and the largest catalogue, all objects
// shown: how long it takes until it is on screen, and what reading, projecting and painting take of it. Then
// a row of keys, as fast as they come. Needs a display; the scale is that of QT_SCALE_FACTOR.
#include "catalogue/catalogue.h"
#include "chart/etat_carte.h"
#include "chart/redessine.h"
#include "fields/frmCercle_champs.h"
#include "machines/qt/lance.h"
#include "machines/qt/peintre.h"
#include "machines/qt/vue_qt.h"
#include "mesure.h"

#include <QApplication>
#include <QKeyEvent>
#include <cstdio>
#include <vector>

namespace {

using mesure::millisecondes;
using mesure::montre;

// Median of many, milliseconds.
template <class F> double mediane(F&& f) {
    constexpr int repetitions = 201;
    std::vector<double> durees;
    for (int i = 0; i < repetitions; ++i) {
        const auto debut = montre::now();
        f();
        durees.push_back(millisecondes(montre::now() - debut));
    }
    return mesure::mediane(durees);
}

struct points {
    std::vector<std::pair<double, double>> tous;
};

points lit_tout(const std::string& objets) {
    points p;
    const auto garde = [&p](std::size_t, const catalogue::astre& a) { p.tous.emplace_back(a.ad, a.dec); };
    catalogue::parcourt("vstar.cat", catalogue::etoiles_carte, garde);
    const auto etoiles = p.tous;
    for (const auto& t : catalogue::lit_traits())
        for (const auto bout : {t.de, t.a})
            p.tous.push_back(etoiles[static_cast<std::size_t>(bout.valeur())]);
    catalogue::parcourt(objets, catalogue::objets_carte, garde);
    return p;
}

void decompose(const char* quoi, double densite) {
    const auto objets = chart::cataloguecercle + ".cat";
    const double tout = mediane(chart::redessine);
    const double lecture = mediane([&] { lit_tout(objets); });
    const auto p = lit_tout(objets);
    volatile double somme = 0;
    const double projection = mediane([&] {
        for (const auto& [ad, dec] : p.tous)
            somme = somme + chart::projette(ad, dec).x;
    });
    plateforme::qt::peintre peintre;
    const int cote = static_cast<int>(frmCercle::ciel.regarde().place.l / 15.0 * densite);
    QImage image{cote, cote, QImage::Format_RGB32};
    const double peinture = mediane([&] { peintre.peint(image, frmCercle::ciel.regarde().toile, densite); });
    std::printf("%-28s %6.2f ms : lecture %.2f, projection %.2f (%zu points), peinture %.2f, copie à l'écran "
                "et reste %.2f\n",
                quoi, tout, lecture, projection, p.tous.size(), peinture,
                tout - lecture - projection - peinture);
}

void rafale(QWidget& carte) {
    constexpr int touches = 120;
    constexpr int cles[] = {Qt::Key_PageUp, Qt::Key_Left,     Qt::Key_End,
                            Qt::Key_Up,     Qt::Key_PageDown, Qt::Key_X};
    const auto debut = montre::now();
    for (int i = 0; i < touches; ++i) {
        QKeyEvent e{QEvent::KeyPress, cles[i % std::ssize(cles)], Qt::ShiftModifier};
        QApplication::sendEvent(&carte, &e);
    }
    const double duree = millisecondes(montre::now() - debut);
    std::printf("%d touches de suite, chacune dessinée : %.0f ms\n", touches, duree);
}

} // namespace

int main(int argc, char** argv) {
    mesure::port_muet port;
    mesure::horloge_arretee horloge;
    plateforme::qt::seance s{
        argc, argv, {.port = port, .horloge = horloge, .attente = [](std::int64_t) {}, .donnees = DONNEES}};
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    s.demarre();
    frmCercle::fiche.montre();
    frmCercle::mnuTous.clic();
    const auto debut = montre::now();
    while (montre::now() - debut < std::chrono::milliseconds{500})
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    const double densite = s.vue().principale()->devicePixelRatioF();
    std::printf("plateforme %s, échelle %g, médianes de 201\n", qPrintable(QGuiApplication::platformName()),
                densite);

    std::string plus_grand;
    std::size_t nombre = 0;
    for (const auto& e : catalogue::entrees)
        if (const auto n = catalogue::lit(e.fichier, catalogue::objets_carte).size(); n > nombre) {
            nombre = n;
            plus_grand = e.fichier;
        }
    chart::cataloguecercle = plus_grand.substr(0, plus_grand.find('.'));
    std::printf("%s, %zu objets\n", plus_grand.c_str(), nombre);
    decompose("zoom 1, sans lettres", densite);
    frmCercle::mnuZCinq.clic();
    decompose("zoom 5, avec lettres", densite);
    frmCercle::mnuRaz.clic();
    rafale(*s.vue().principale()->findChild<QWidget*>("ciel"));
    // The process ends here: its windows are not taken down.
    std::fflush(stdout);
    std::quick_exit(0);
}
