#include "machines/qt/menus.h"

#include "machines/qt/accord.h"
#include "machines/qt/mesures.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <functional>
#include <map>

namespace plateforme::qt {

namespace {

using shell::controle;
using shell::entree;
using shell::genre;

/// Called with an entry that was chosen, after all menus have closed.
using choix = std::function<void(entree&)>;

// The entries of a menu, in order; those of the bar itself for no parent.
std::vector<entree*> enfants(const shell::panneau& p, const controle* parent) {
    std::vector<entree*> liste;
    for (auto* c : p.controles())
        if (c->espece() == genre::entree && c->cadre() == parent)
            liste.push_back(static_cast<entree*>(c));
    return liste;
}

class menu final : public QMenu {
  public:
    menu(const shell::panneau& p, const controle* parent, const choix& choisit, QWidget* sous,
         inventaire& pieces)
        : QMenu(sous), choisit_(choisit) {
        for (auto* e : enfants(p, parent))
            ajoute(*e, pieces);
    }

  protected:
    void mousePressEvent(QMouseEvent* e) override {
        presse_ = actionAt(e->position().toPoint());
        QMenu::mousePressEvent(e);
    }

    void mouseReleaseEvent(QMouseEvent* e) override {
        auto* action = actionAt(e->position().toPoint());
        auto* choisie = action == std::exchange(presse_, nullptr) ? commande(action) : nullptr;
        if (choisie)
            ferme_et_choisit(*choisie);
        else
            QMenu::mouseReleaseEvent(e);
    }

    void keyPressEvent(QKeyEvent* e) override {
        const bool valide = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
        auto* choisie = valide ? commande(activeAction()) : nullptr;
        if (choisie)
            ferme_et_choisit(*choisie);
        else
            QMenu::keyPressEvent(e);
    }

  private:
    void ajoute(entree& e, inventaire& pieces) {
        QAction* action = nullptr;
        if (!enfants(e.fiche(), &e).empty()) {
            auto* sous_menu = new menu{e.fiche(), &e, choisit_, this, pieces};
            sous_menu->setObjectName(affiche(e.nom()) + ".menu");
            action = addMenu(sous_menu);
            branches_[action] = &e;
        } else {
            action = addAction(QString{});
            action->setSeparator(e.a(shell::separateur));
            connect(action, &QAction::triggered, this, [this, &e] { choisit_(e); });
        }
        action->setObjectName(affiche(e.nom()));
        pieces.range(e, action);
        accorde_tout(e, action);
    }

    // The entry of an action that has children and a command, else none.
    entree* commande(QAction* action) const {
        const auto place = branches_.find(action);
        if (place == branches_.end() || !action->isEnabled() || !place->second->a_une_commande())
            return nullptr;
        return place->second;
    }

    void ferme_et_choisit(entree& e) {
        ferme_surgissants();
        choisit_(e);
    }

    choix choisit_;
    std::map<QAction*, entree*> branches_;
    QAction* presse_ = nullptr;
};

} // namespace

void remplit_barre(QMenuBar& barre, const shell::panneau& p, inventaire& pieces) {
    const choix clique = [](entree& e) { e.clic(); };
    for (auto* e : enfants(p, nullptr)) {
        if (e->a(shell::surgissant))
            continue;
        QAction* action = nullptr;
        if (enfants(p, e).empty()) {
            action = barre.addAction(QString{});
            QObject::connect(action, &QAction::triggered, action, [e] { e->clic(); });
        } else {
            auto* m = new menu{p, e, clique, &barre, pieces};
            m->setObjectName(affiche(e->nom()) + ".menu");
            action = barre.addMenu(m);
        }
        action->setObjectName(affiche(e->nom()));
        pieces.range(*e, action);
    }
}

void ferme_surgissants() {
    constexpr int plus_que_jamais = 20; // one that would not close must not hold the program up
    for (int i = 0; i < plus_que_jamais && QApplication::activePopupWidget(); ++i)
        QApplication::activePopupWidget()->close();
}

namespace {

// At the pointer; if a key opened it, in the middle of what has the focus.
QPoint place_du_surgissant() {
    const auto souris = QCursor::pos();
    const auto* w = QApplication::focusWidget();
    return !w || w->rect().contains(w->mapFromGlobal(souris)) ? souris : w->mapToGlobal(w->rect().center());
}

} // namespace

entree* ouvre_surgissant(entree& racine, const entree* defaut) {
    entree* choisie = nullptr;
    inventaire pieces{racine.fiche()};
    menu m{racine.fiche(), &racine, [&choisie](entree& e) { choisie = &e; }, nullptr, pieces};
    m.setObjectName(affiche(racine.nom()));
    if (defaut)
        m.setDefaultAction(static_cast<QAction*>(pieces.piece(*defaut)));
    m.exec(place_du_surgissant());
    return choisie;
}

} // namespace plateforme::qt
