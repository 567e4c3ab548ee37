#include "machines/qt/accord.h"

#include "machines/qt/images.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/surface.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QTextOption>
#include <cmath>

namespace plateforme::qt {

namespace {

using shell::aspect;
using shell::controle;
using shell::genre;

template <class T> T* en(QObject* piece) { return static_cast<T*>(piece); }

// Widgets and actions alike; a piece without the property is left as it is.
void pose(QObject* piece, const char* propriete, const QVariant& valeur) {
    if (piece->metaObject()->indexOfProperty(propriete) >= 0)
        piece->setProperty(propriete, valeur);
}

// A break between words is looked for from each line's start to its word's end: a word of a whole page would
// take minutes.
QTextOption::WrapMode coupure(const QString& t) {
    constexpr int mot_trop_long = 1000;
    int longueur = 0;
    for (const QChar lettre : t) {
        longueur = lettre.isSpace() ? 0 : longueur + 1;
        if (longueur > mot_trop_long)
            return QTextOption::WrapAnywhere;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

void texte_saisi(const controle& c, QObject* piece) {
    const auto t = affiche(c.regarde().texte);
    if (c.a(shell::multiligne)) {
        auto* w = en<QPlainTextEdit>(piece);
        auto lignes = t;
        lignes.replace("\r\n", "\n");
        if (lignes_de(*w) != lignes) {
            w->setWordWrapMode(coupure(lignes));
            w->setPlainText(lignes);
        }
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
    if (c.espece() == genre::texte)
        texte_saisi(c, piece);
    else if (c.espece() == genre::etiquette)
        en<etiquette>(piece)->ecrit(c.regarde().texte);
    else
        pose(piece, c.espece() == genre::cadre ? "title" : "text", affiche(c.regarde().texte));
}

// The common case is lines added at the end; anything else is filled anew.
template <class W> void lignes(const controle& c, W* w) {
    const auto& l = c.regarde().lignes;
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

void position(const controle& c, QComboBox* w) { w->setCurrentIndex(c.regarde().position); }

void position(const controle& c, QListWidget* w) {
    w->setCurrentRow(c.regarde().position);
    if (c.regarde().position < 0)
        w->clearSelection();
}

// Calls `f` with the widget of a list, whichever of the two kinds it is; nothing for other controls.
template <class F> void sur_liste(const controle& c, QObject* piece, F f) {
    if (c.espece() == genre::deroulante)
        f(en<QComboBox>(piece));
    else if (c.espece() == genre::liste)
        f(en<QListWidget>(piece));
}

void valeur(const controle& c, QObject* piece) {
    double n = c.regarde().valeur;
    if (c.espece() == genre::progression) {
        const auto& d = c.comme_dessine();
        n = d.max > d.min ? (n - d.min) / (d.max - d.min) * en<QProgressBar>(piece)->maximum() : 0;
    }
    pose(piece, "value", static_cast<int>(std::lround(n)));
}

void coche(const controle& c, QObject* piece) {
    if (c.regarde().coche)
        pose(piece, "checkable", true);
    pose(piece, "checked", c.regarde().coche);
}

void image(const controle& c, QObject* piece) {
    if (c.espece() != genre::image)
        return;
    auto* w = en<tableau_image>(piece);
    if (c.regarde().image.numero)
        w->montre(pixels_de(c.regarde().image));
    else if (*c.comme_dessine().image)
        w->montre(decor(c.comme_dessine().image, w->devicePixelRatioF()));
    else
        w->montre({});
}

// Beyond the edge of its panel a control is hidden: the keys must not reach what the eye cannot see.
bool dans_le_panneau(const QWidget* w) {
    if (!w)
        return true;
    for (const auto* p = w->parentWidget(); p; p = p->parentWidget())
        if (qobject_cast<const QMdiSubWindow*>(p->parentWidget()))
            return QRect{w->mapTo(p, QPoint{}), w->size()}.intersects(p->rect());
    return true;
}

void place(const controle& c, QObject* piece) {
    if (c.regarde().place.l > 0)
        en<QWidget>(piece)->setGeometry(rectangle(c.regarde().place));
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
        return sur_liste(c, piece, [&c](auto* w) {
            lignes(c, w);
            position(c, w);
        });
    case aspect::position:
        return sur_liste(c, piece, [&c](auto* w) { position(c, w); });
    case aspect::valeur:
        return valeur(c, piece);
    case aspect::coche:
        return coche(c, piece);
    case aspect::visible:
        return pose(piece, "visible",
                    c.regarde().visible && dans_le_panneau(qobject_cast<const QWidget*>(piece)));
    case aspect::actif:
        return pose(piece, "enabled", c.regarde().actif);
    case aspect::place:
        return place(c, piece);
    case aspect::image:
        return image(c, piece);
    case aspect::enfonce:
        if (c.espece() == genre::bouton)
            en<bouton>(piece)->montre_enfonce(c.regarde().enfonce);
        return;
    case aspect::dessin:
        if (c.espece() == genre::surface)
            en<surface>(piece)->montre();
        return;
    }
}

void accorde_tout(const controle& c, QObject* piece) {
    sur_liste(c, piece, [](auto* w) {
        const QSignalBlocker sans_echo{w};
        w->clear();
    });
    for (const auto a : {aspect::lignes, aspect::texte, aspect::valeur, aspect::coche, aspect::place,
                         aspect::image, aspect::enfonce, aspect::dessin, aspect::actif, aspect::visible})
        accorde(c, piece, a);
}

} // namespace plateforme::qt
