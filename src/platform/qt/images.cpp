#include "platform/qt/images.h"

#include "base/fatale.h"

#include <QDir>
#include <QImageReader>
#include <cmath>
#include <map>
#include <vector>

namespace plateforme::qt {

namespace {

std::map<std::filesystem::path, int> numeros;
std::vector<QImage> chargees;

// A picture that states no density gets Qt's guess, which is the screen's.
double densite(const QImage& i) {
    constexpr double pouces_par_metre = 1000 / 25.4;
    static const int supposee = QImage{1, 1, QImage::Format_RGB32}.dotsPerMeterX();
    return i.dotsPerMeterX() == supposee ? 96 : std::round(i.dotsPerMeterX() / pouces_par_metre);
}

} // namespace

image charge(const std::filesystem::path& chemin) {
    if (!std::filesystem::exists(chemin))
        base::fatale(base::cause::fichier_introuvable, chemin.string());
    QImageReader lecteur{QString::fromStdString(chemin.string())};
    lecteur.setDecideFormatFromContent(true);
    const auto format = lecteur.format();
    const QImage lue = format == "gif" || format == "jpeg" ? lecteur.read() : QImage{};
    if (lue.isNull())
        base::fatale(base::cause::image_illisible, chemin.string());
    const auto [place, nouvelle] = numeros.try_emplace(chemin, static_cast<int>(chargees.size()) + 1);
    if (nouvelle)
        chargees.emplace_back();
    chargees[static_cast<std::size_t>(place->second - 1)] = lue;
    return {place->second, lue.width(), lue.height(), densite(lue)};
}

QPixmap pixels_de(const image& i) {
    return i.numero > 0 ? QPixmap::fromImage(chargees[static_cast<std::size_t>(i.numero - 1)]) : QPixmap{};
}

QIcon icone(int indice) {
    const QDir dossier{":/icones"};
    const auto noms = dossier.entryList({QString{"%1-*.png"}.arg(indice, 2, 10, QChar{'0'})});
    for (const auto& nom : noms)
        if (!nom.contains('@'))
            return QIcon{dossier.filePath(nom)};
    return {};
}

QIcon face(const char* nom) { return QIcon{QString{":/boutons/%1.png"}.arg(nom)}; }

QPixmap decor(const char* nom, QSize taille, double densite) {
    return QIcon{QString{":/%1.png"}.arg(nom)}.pixmap(taille, densite);
}

} // namespace plateforme::qt
