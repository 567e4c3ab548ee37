// Brings a widget to what the store holds of its control. Never an act of the user: nothing is echoed.
#pragma once

#include "shell/controles.h"

class QObject;

namespace plateforme::qt {

/// `piece` is the widget or action made for the control.
void accorde(const shell::controle& c, QObject* piece, aspect a);

/// All that its kind shows.
void accorde_tout(const shell::controle& c, QObject* piece);

} // namespace plateforme::qt
