#include "machines/qt/accord.h"

#include "machines/qt/images.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/surface.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolBar>
#include <cmath>

namespace plateforme::qt {

namespace {

using shell::controle;
using shell::genre;

template <class T> T* en(QObject* piece) { return static_cast<T*>(piece); }

void texte_saisi(const controle& c, QObject* piece) {
    const auto t = affiche(c.regarde_texte());
    if (c.a(shell::multiligne)) {
        auto* w = en<QPlainTextEdit>(piece);
        auto lignes = t;
        lignes.replace("\r\n", "\n");
        if (lignes_de(*w) != lignes)
            w->setPlainText(lignes);
        return;
    }
    auto* w = en<QLineEdit>(piece);
    if (w->text() == t)
        return;
    w->setText(t);
    if (!w->hasFocus())
        w->setCursorPosition(0);
}

void texte(const controle& c, QObject* piece) {
    const auto t = affiche(c.regarde_texte());
    switch (c.espece()) {
    case genre::texte:
        texte_saisi(c, piece);
        return;
    case genre::etiquette:
        en<etiquette>(piece)->ecrit(c.regarde_texte());
        return;
    case genre::bouton:
    case genre::coche:
    case genre::option:
        en<QAbstractButton>(piece)->setText(t);
        return;
    case genre::cadre:
        en<QGroupBox>(piece)->setTitle(t);
        return;
    case genre::entree:
    case genre::outil:
        en<QAction>(piece)->setText(t);
        return;
    case genre::barre_etat:
        en<QWidget>(piece)->findChild<QLabel*>()->setText(t);
        return;
    default:
        return;
    }
}

// The common case is lines added at the end; anything else is filled anew.
template <class W> void lignes(const controle& c, W* w) {
    const auto& l = c.regarde_lignes();
    const auto texte_a = [w](int i) {
        if constexpr (requires { w->itemText(i); })
            return w->itemText(i);
        else
            return w->item(i)->text();
    };
    const int n = w->count();
    const bool prolonge = n <= static_cast<int>(l.size()) &&
                          (n == 0 || texte_a(n - 1) == affiche(l[static_cast<std::size_t>(n - 1)]));
    if (!prolonge)
        w->clear();
    QStringList ajout;
    for (auto i = static_cast<std::size_t>(w->count()); i < l.size(); ++i)
        ajout.append(affiche(l[i]));
    if (!ajout.isEmpty())
        w->addItems(ajout);
}

void position(const controle& c, QObject* piece) {
    const int k = c.regarde_position();
    if (c.espece() == genre::deroulante) {
        en<QComboBox>(piece)->setCurrentIndex(k);
        return;
    }
    auto* w = en<QListWidget>(piece);
    w->setCurrentRow(k);
    if (k < 0)
        w->clearSelection();
}

void valeur(const controle& c, QObject* piece) {
    const auto& d = c.comme_dessine();
    switch (c.espece()) {
    case genre::barre:
    case genre::curseur:
        en<QAbstractSlider>(piece)->setValue(static_cast<int>(c.regarde_valeur()));
        return;
    case genre::progression: {
        auto* w = en<QProgressBar>(piece);
        const double part = d.max > d.min ? (c.regarde_valeur() - d.min) / (d.max - d.min) : 0;
        w->setValue(static_cast<int>(std::lround(part * w->maximum())));
        return;
    }
    default:
        return;
    }
}

void coche(const controle& c, QObject* piece) {
    if (c.espece() == genre::entree) {
        auto* a = en<QAction>(piece);
        if (c.regarde_coche())
            a->setCheckable(true);
        a->setChecked(c.regarde_coche());
        return;
    }
    if (c.espece() != genre::coche && c.espece() != genre::option)
        return;
    auto* b = en<QAbstractButton>(piece);
    const bool exclusif = b->autoExclusive();
    b->setAutoExclusive(false); // else an option could not be cleared before another is set
    b->setChecked(c.regarde_coche());
    b->setAutoExclusive(exclusif);
}

void image(const controle& c, QObject* piece) {
    if (c.espece() != genre::image)
        return;
    auto* w = en<tableau_image>(piece);
    if (c.regarde_image().numero)
        w->montre(pixels_de(c.regarde_image()));
    else if (*c.comme_dessine().image)
        w->montre(decor(c.comme_dessine().image, w->devicePixelRatioF()));
    else
        w->montre({});
}

void visible(const controle& c, QObject* piece) {
    if (piece->isWidgetType())
        en<QWidget>(piece)->setVisible(c.regarde_visible());
    else
        en<QAction>(piece)->setVisible(c.regarde_visible());
}

void actif(const controle& c, QObject* piece) {
    if (piece->isWidgetType())
        en<QWidget>(piece)->setEnabled(c.regarde_actif());
    else
        en<QAction>(piece)->setEnabled(c.regarde_actif());
}

void place(const controle& c, QObject* piece) {
    if (c.regarde_place().l > 0)
        en<QWidget>(piece)->setGeometry(rectangle(c.regarde_place()));
}

} // namespace

QString lignes_de(const QPlainTextEdit& w) {
    auto t = w.document()->toRawText();
    t.replace(QChar::ParagraphSeparator, '\n');
    return t.replace(QChar::LineSeparator, '\n'); // what Shift and Return put in
}

void accorde(const controle& c, QObject* piece, aspect a) {
    // Actions must tell their menus, and toolbars that they are seen; the others' signals stand for the user.
    const bool dit_un_acte = piece->isWidgetType() && a != aspect::visible && a != aspect::actif;
    const QSignalBlocker sans_echo{dit_un_acte ? piece : nullptr};
    switch (a) {
    case aspect::texte:
        return texte(c, piece);
    case aspect::lignes:
        if (c.espece() == genre::deroulante)
            lignes(c, en<QComboBox>(piece));
        else
            lignes(c, en<QListWidget>(piece));
        return position(c, piece);
    case aspect::position:
        return position(c, piece);
    case aspect::valeur:
        return valeur(c, piece);
    case aspect::coche:
        return coche(c, piece);
    case aspect::visible:
        return visible(c, piece);
    case aspect::actif:
        return actif(c, piece);
    case aspect::place:
        return place(c, piece);
    case aspect::image:
        return image(c, piece);
    case aspect::enfonce:
        if (c.espece() == genre::bouton)
            en<bouton>(piece)->montre_enfonce(c.regarde_enfonce());
        return;
    case aspect::dessin:
        if (c.espece() == genre::surface)
            en<surface>(piece)->montre();
        return;
    }
}

void accorde_tout(const controle& c, QObject* piece) {
    const bool a_des_lignes = c.espece() == genre::liste || c.espece() == genre::deroulante;
    if (a_des_lignes) {
        const QSignalBlocker sans_echo{piece};
        if (c.espece() == genre::liste)
            en<QListWidget>(piece)->clear();
        else
            en<QComboBox>(piece)->clear();
        accorde(c, piece, aspect::lignes);
    }
    for (const auto a : {aspect::texte, aspect::valeur, aspect::coche, aspect::place, aspect::image,
                         aspect::enfonce, aspect::dessin, aspect::actif, aspect::visible})
        accorde(c, piece, a);
}

} // namespace plateforme::qt
