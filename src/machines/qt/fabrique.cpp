#include "machines/qt/fabrique.h"

#include "machines/qt/accord.h"
#include "machines/qt/images.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/surface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace plateforme::qt {

namespace {

using namespace shell;

template <class C> C& en(controle& c) { return static_cast<C&>(c); }

Qt::Orientation sens(const controle& c) {
    const auto p = c.regarde().place;
    return p.l >= p.h ? Qt::Horizontal : Qt::Vertical;
}

// An act counts only while its panel is on screen: one that comes late, such as the release of a button whose
// panel a key has closed meanwhile, would load the panel anew.
template <class W, class S, class F> void relie(W* w, S signal, controle& c, F acte) {
    QObject::connect(w, signal, w, [&c, acte](auto... valeurs) {
        if (c.fiche().est_visible())
            acte(valeurs...);
    });
}

QWidget* texte(champ_texte& c, QWidget* parent) {
    if (c.a(multiligne)) {
        auto* w = new page_de_texte{parent};
        w->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        w->setTabChangesFocus(true);
        w->setContextMenuPolicy(Qt::NoContextMenu); // its entries would not be in French
        QFont police{QStringList{"Arial", w->font().family()}};
        police.setPixelSize(w->font().pixelSize());
        w->setFont(police);
        relie(w, &QPlainTextEdit::textChanged, c,
              [w, &c] { c.saisit(lu(lignes_de(*w).replace("\n", "\r\n"))); });
        return w;
    }
    auto* w = new ligne_de_texte{parent};
    w->setContextMenuPolicy(Qt::NoContextMenu);
    w->setAlignment((c.a(centre) ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    relie(w, &QLineEdit::textEdited, c, [&c](const QString& t) { c.saisit(lu(t)); });
    return w;
}

// A stop button acts at the press, the others at a release over the button: the store knows which.
QWidget* pousse(champ_bouton& c, QWidget* parent) {
    auto* w = new bouton{parent};
    relie(w, &QPushButton::pressed, c, [&c] { c.appuie(); });
    relie(w, &QPushButton::clicked, c, [&c](bool) { c.relache(); });
    if (*c.comme_dessine().image) {
        constexpr int cote = 32; // of the drawings, with room for the button's edge
        const auto place = rectangle(c.regarde().place);
        const int n = std::min({cote, place.width() - 8, place.height() - 8});
        w->setIcon(face(c.comme_dessine().image));
        w->setIconSize({n, n});
    }
    return w;
}

QWidget* case_a_cocher(champ_coche& c, QWidget* parent) {
    auto* w = new QCheckBox{parent};
    relie(w, &QCheckBox::clicked, c, [w, &c](bool oui) {
        c.regle(oui);
        accorde(c, w, aspect::coche);
    });
    return w;
}

QWidget* option(champ_option& c, QWidget* parent) {
    auto* w = new QRadioButton{parent};
    w->setAutoExclusive(false); // the store clears the others; an arrow key only moves the focus
    relie(w, &QRadioButton::clicked, c, [w, &c](bool) {
        c.clic();
        accorde(c, w, aspect::coche);
    });
    return w;
}

QWidget* deroulante(champ_deroulante& c, QWidget* parent) {
    auto* w = new QComboBox{parent};
    relie(w, &QComboBox::activated, c, [w, &c](int k) {
        c.choisit(k);
        accorde(c, w, aspect::position);
    });
    return w;
}

template <class W> QWidget* barre(reglable& c, QWidget* parent) {
    const auto& d = c.comme_dessine();
    auto* w = new W{sens(c), parent};
    w->setRange(d.min, d.max);
    w->setSingleStep(d.petit);
    w->setPageStep(d.grand);
    w->setInvertedControls(false); // else the right arrow moves a scroll bar to the left
    w->setFocusPolicy(Qt::StrongFocus);
    if constexpr (std::is_same_v<W, QSlider>) {
        w->setTickPosition(QSlider::TicksBelow);
        w->setTickInterval(1);
    }
    relie(w, &W::valueChanged, c, [w, &c](int n) {
        c.regle(n);
        accorde(c, w, aspect::valeur);
    });
    return w;
}

QWidget* progression(QWidget* parent) {
    constexpr int finesse = 1000;
    auto* w = new QProgressBar{parent};
    w->setRange(0, finesse);
    w->setTextVisible(false);
    return w;
}

// Two arrow buttons, one above the other.
QWidget* hautbas(champ_hautbas& c, QWidget* parent) {
    auto* w = new QWidget{parent};
    auto* pile = new QVBoxLayout{w};
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(0);
    for (const bool plus : {true, false}) {
        auto* b = new QToolButton{w};
        b->setArrowType(plus ? Qt::UpArrow : Qt::DownArrow);
        b->setAutoRepeat(true);
        b->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        b->setObjectName(affiche(c.nom()) + (plus ? ".plus" : ".moins"));
        b->setAccessibleName(b->objectName());
        pile->addWidget(b);
        relie(b, &QToolButton::clicked, c, [&c, plus](bool) { plus ? c.plus() : c.moins(); });
    }
    return w;
}

QWidget* piece(controle& c, QWidget* parent) {
    switch (c.espece()) {
    case genre::texte:
        return texte(en<champ_texte>(c), parent);
    case genre::etiquette:
        return new etiquette{en<champ_etiquette>(c), parent};
    case genre::liste:
        return new liste{en<champ_liste>(c), parent};
    case genre::deroulante:
        return deroulante(en<champ_deroulante>(c), parent);
    case genre::bouton:
        return pousse(en<champ_bouton>(c), parent);
    case genre::coche:
        return case_a_cocher(en<champ_coche>(c), parent);
    case genre::option:
        return option(en<champ_option>(c), parent);
    case genre::barre:
        return barre<QScrollBar>(en<reglable>(c), parent);
    case genre::curseur:
        return barre<QSlider>(en<reglable>(c), parent);
    case genre::hautbas:
        return hautbas(en<champ_hautbas>(c), parent);
    case genre::progression:
        return progression(parent);
    case genre::image:
        return new tableau_image{en<champ_image>(c), parent};
    case genre::cadre:
        return new QGroupBox{parent};
    case genre::surface:
        return new surface{en<champ_surface>(c), parent};
    case genre::minuteur:
    case genre::entree:
    case genre::barre_outils:
    case genre::outil:
    case genre::barre_etat:
        return nullptr;
    }
    return nullptr;
}

} // namespace

QWidget* fabrique(controle& c, QWidget* parent) {
    auto* w = piece(c, parent);
    if (!w)
        return nullptr;
    w->setObjectName(affiche(c.nom()));
    w->setAccessibleName(w->objectName());
    new montre_bulle{c, w};
    if (c.a(gras)) {
        auto police = w->font();
        police.setBold(true);
        w->setFont(police);
    }
    if (c.a(traverse))
        w->setAttribute(Qt::WA_TransparentForMouseEvents);
    if (c.a(fond))
        w->lower();
    return w;
}

} // namespace plateforme::qt
