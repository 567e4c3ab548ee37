// What was made for each control of a panel: a widget, an action, or nothing.
#pragma once

#include "store/controles.h"

#include <QWidget>
#include <vector>

namespace plateforme::qt {

class inventaire {
  public:
    explicit inventaire(const shell::panneau& p) : pieces_(p.controles().size()) {}
    void range(const shell::controle& c, QObject* piece) { pieces_[rang(c)] = piece; }
    /// Null where nothing is.
    QObject* piece(const shell::controle& c) const { return pieces_[rang(c)]; }
    QWidget* widget(const shell::controle& c) const { return qobject_cast<QWidget*>(piece(c)); }

  private:
    static std::size_t rang(const shell::controle& c) { return static_cast<std::size_t>(c.rang()); }
    std::vector<QObject*> pieces_;
};

} // namespace plateforme::qt
