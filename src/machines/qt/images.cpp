#include "machines/qt/images.h"

#include "base/fatale.h"

#include <QDir>
#include <QImageReader>
#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <string_view>
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

// With the format named and taken at its word: to let Qt guess has it load all its picture plugins.
QImage lit(const QString& chemin, const char* format) {
    QImageReader lecteur{chemin, format};
    lecteur.setAutoDetectImageFormat(false);
    return lecteur.read();
}

// The format by the first bytes, null for neither GIF nor JPEG.
const char* format_de(const std::filesystem::path& chemin) {
    std::array<char, 3> debut{};
    std::ifstream{chemin, std::ios::binary}.read(debut.data(), debut.size());
    const std::string_view signe{debut.data(), debut.size()};
    return signe == "GIF" ? "gif" : signe == "\xFF\xD8\xFF" ? "jpeg" : nullptr;
}

QPixmap png(const QString& chemin) { return QPixmap::fromImage(lit(chemin, "png")); }

// The drawing at one, two and three times its size, those there are. `souche` is its path without ".png".
QIcon toutes_densites(const QString& souche) {
    QIcon i;
    for (const auto* taille : {"", "@2x", "@3x"})
        if (const auto chemin = souche + taille + ".png"; QFile::exists(chemin))
            i.addPixmap(png(chemin));
    return i;
}

} // namespace

image charge(const std::filesystem::path& chemin) {
    if (!std::filesystem::exists(chemin))
        base::fatale(base::cause::fichier_introuvable, chemin.string());
    const auto* format = format_de(chemin);
    const QImage lue = format ? lit(QString::fromStdString(chemin.string()), format) : QImage{};
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
    static const auto noms = QDir{":/icones"}.entryList();
    const auto debut = QString{"%1-"}.arg(indice, 2, 10, QChar{'0'});
    for (const auto& nom : noms)
        if (nom.startsWith(debut) && !nom.contains('@'))
            return toutes_densites(":/icones/" + nom.chopped(4));
    return {};
}

QIcon face(const char* nom) { return toutes_densites(QString{":/boutons/%1"}.arg(nom)); }

QPixmap decor(const char* nom, double densite) {
    for (const char* suffixe : {"@2x", ""})
        for (const char* forme : {"png", "gif"}) {
            const auto chemin = QString{":/%1%2.%3"}.arg(nom, suffixe, forme);
            if ((densite > 1 || !*suffixe) && QFile::exists(chemin))
                return QPixmap::fromImage(lit(chemin, forme));
        }
    return {};
}

QIcon icone_programme(const char* nom) { return png(QString{":/%1-64.png"}.arg(nom)); }

} // namespace plateforme::qt
