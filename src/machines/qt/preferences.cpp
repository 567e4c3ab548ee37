#include "machines/qt/preferences.h"

#include <QSettings>

namespace plateforme::qt {

namespace {

constexpr const char* cle_nuit = "nuit";
constexpr const char* groupe_places = "places";

// ~/.config/velmoria/velmoria.ini, or where the account keeps such files. Written when it is dropped: at each
// change, never at the end of the program. A failure to write it is nobody's loss.
QSettings fichier() { return QSettings{QSettings::IniFormat, QSettings::UserScope, "velmoria", "velmoria"}; }

} // namespace

bool nuit_retenue() { return fichier().value(cle_nuit, false).toBool(); }
void retient_nuit(bool oui) { fichier().setValue(cle_nuit, oui); }

std::optional<QRect> place_retenue(const QString& nom) {
    const auto r = fichier().value(groupe_places + QString{'/'} + nom).toRect();
    return r.isValid() ? std::optional{r} : std::nullopt;
}

void retient_place(const QString& nom, const QRect& place) {
    fichier().setValue(groupe_places + QString{'/'} + nom, place);
}

void oublie_les_places() { fichier().remove(groupe_places); }

} // namespace plateforme::qt
