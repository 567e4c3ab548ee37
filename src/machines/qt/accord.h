// Brings a widget to what the store holds of its control. Never an act of the user: nothing is echoed.
#pragma once

#include "store/controles.h"

#include <QString>

class QObject;
class QPlainTextEdit;

namespace plateforme::qt {

/// `piece` is the widget or action made for the control.
void accorde(const shell::controle& c, QObject* piece, shell::aspect a);

/// All that its kind shows.
void accorde_tout(const shell::controle& c, QObject* piece);

/// The text of a field of several lines, each ended by LF but the last. Qt's own plain text would turn
/// no-break blanks into ordinary ones.
QString lignes_de(const QPlainTextEdit& w);

} // namespace plateforme::qt
