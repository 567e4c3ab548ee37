#include "machines/qt/vue_qt.h"

#include "machines/qt/accord.h"
#include "machines/qt/images.h"
#include "machines/qt/menus.h"
#include "machines/qt/mesures.h"
#include "store/controles.h"

#include <QMessageBox>

namespace plateforme::qt {

fenetre* vue_qt::trouve(const shell::panneau& p) const {
    for (const auto& f : fenetres_)
        if (&f->fiche == &p)
            return f.get();
    return nullptr;
}

void vue_qt::panneau_change(shell::panneau& p) {
    auto* f = trouve(p);
    if (!f) {
        if (!p.est_visible())
            return;
        f = fenetres_.emplace_back(cree_fenetre(p, zone_)).get();
        if (p.options().principal)
            zone_ = f->enfants;
    }
    accorde_fenetre(*f);
}

void vue_qt::eleve(shell::panneau& p) {
    if (auto* f = trouve(p))
        avance(*f);
}

void vue_qt::repeint(shell::panneau& p) {
    if (auto* f = trouve(p))
        peint(*f);
}

// A hidden window costs nothing: it is brought up to date when it comes on screen.
void vue_qt::controle_change(shell::controle& c, shell::aspect a) {
    const auto* f = trouve(c.fiche());
    if (!f || f->cadre->isHidden())
        return;
    if (auto* piece = f->pieces.piece(c))
        accorde(c, piece, a);
}

shell::entree* vue_qt::ouvre_menu(shell::entree& racine, const shell::entree* defaut) {
    return ouvre_surgissant(racine, defaut);
}

void vue_qt::message(const std::string& texte, shell::titre t) {
    // An empty title would be replaced by the program's name.
    QMessageBox boite{QMessageBox::NoIcon, t == shell::titre::aucun ? " " : "Velmoria", affiche(texte),
                      QMessageBox::Ok, principale()};
    boite.setObjectName("message");
    boite.setTextFormat(Qt::PlainText);
    boite.exec();
}

image vue_qt::charge_image(const std::filesystem::path& chemin) { return charge(chemin); }

QWidget* vue_qt::principale() const { return zone_ ? zone_->window() : nullptr; }

} // namespace plateforme::qt
