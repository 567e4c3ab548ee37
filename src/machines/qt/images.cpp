#include "machines/qt/images.h"

#include "base/fatale.h"
#include "base/fichier.h"
#include "seam/entete_image.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace plateforme::qt {

namespace {

std::map<std::filesystem::path, int> numeros;
std::vector<QImage> chargees;

// With the format named and taken at its word: to let Qt guess has it load all its picture plugins.
QImage lit(const QString& chemin, const char* format) {
    QImageReader lecteur{chemin, format};
    lecteur.setAutoDetectImageFormat(false);
    return lecteur.read();
}

// A picture of the data folder, whose header said its size. One that would take more memory than Qt allows is
// scaled down while it is read.
QImage lit_donnee(const std::string& octets, const image& entete) {
    constexpr int cote_du_reduit = 4096;
    constexpr std::int64_t octets_par_pixel = 4;
    auto brut = QByteArray::fromRawData(octets.data(), static_cast<qsizetype>(octets.size()));
    QBuffer tampon{&brut};
    QImageReader lecteur{&tampon, octets.starts_with("GIF") ? "gif" : "jpeg"};
    lecteur.setAutoDetectImageFormat(false);
    const QSize taille{entete.largeur, entete.hauteur};
    if (octets_par_pixel * taille.width() * taille.height() > std::int64_t{QImageReader::allocationLimit()}
                                                                  << 20)
        lecteur.setScaledSize(taille.scaled(cote_du_reduit, cote_du_reduit, Qt::KeepAspectRatio));
    return lecteur.read();
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
    const auto octets = base::lit_fichier(chemin);
    const auto entete = lit_entete(octets);
    const auto lue = entete ? lit_donnee(octets, *entete) : QImage{};
    if (lue.isNull())
        base::fatale(base::cause::image_illisible, chemin.string());
    const auto [place, nouvelle] = numeros.try_emplace(chemin, static_cast<int>(chargees.size()) + 1);
    if (nouvelle)
        chargees.emplace_back();
    chargees[static_cast<std::size_t>(place->second - 1)] = lue;
    return {place->second, entete->largeur, entete->hauteur, entete->ppp};
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
