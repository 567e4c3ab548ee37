// One generic realisation of every kind of control.
#pragma once

#include "store/controles.h"

class QWidget;

namespace plateforme::qt {

/// Makes the widget of a control that has a place in a panel, wired to the control's acts and bearing its
/// name. Null for the kinds that have none (timers), or none of their own (menu entries, toolbars).
QWidget* fabrique(shell::controle& c, QWidget* parent);

} // namespace plateforme::qt
