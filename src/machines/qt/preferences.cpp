#include "machines/qt/preferences.h"

#include <QSettings>

namespace plateforme::qt {

namespace {

constexpr const char* cle_nuit = "nuit";

// ~/.config/velmoria/velmoria.ini, or where the account keeps such files. Written when it is dropped: at each
// change, never at the end of the program. A failure to write it is nobody's loss.
QSettings fichier() { return QSettings{QSettings::IniFormat, QSettings::UserScope, "velmoria", "velmoria"}; }

} // namespace

bool nuit_retenue() { return fichier().value(cle_nuit, false).toBool(); }
void retient_nuit(bool oui) { fichier().setValue(cle_nuit, oui); }

} // namespace plateforme::qt
