#include "machines/qt/bench/raquette_banc.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>

namespace banc {

namespace {

// Slow, medium, fast. The other direction of an axis pulls one data line more.
constexpr std::array<int, 3> codes_altitude = {10, 3, 2};
constexpr std::array<int, 3> codes_azimut = {15, 9, 13};
constexpr int ligne_altitude = 16;
constexpr int ligne_azimut = 128;

constexpr std::array<int, 4> fleches = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};

bool verticale(touche_raquette t) { return t == touche_raquette::haut || t == touche_raquette::bas; }

} // namespace

int code_raquette(touche_raquette t, int vitesse) {
    const auto v = static_cast<std::size_t>(std::clamp(vitesse, 0, 2));
    switch (t) {
    case touche_raquette::haut:
        return codes_altitude[v];
    case touche_raquette::bas:
        return codes_altitude[v] + ligne_altitude;
    case touche_raquette::droite:
        return codes_azimut[v];
    case touche_raquette::gauche:
        return codes_azimut[v] + ligne_azimut;
    }
    return port_simule::sans_touche;
}

raquette_banc::raquette_banc(port_simule& p, QWidget* parent) : QGroupBox("Raquette", parent), port_(p) {
    auto* rang = new QHBoxLayout{this};
    rang->setSpacing(16);
    auto* croix = new QGridLayout;
    struct place {
        const char* nom;
        const char* image;
        int ligne, colonne;
    };
    // In the order of `touche_raquette`.
    constexpr std::array<place, 4> places = {{{"raquette_haut", "fleche_haut", 0, 1},
                                              {"raquette_bas", "fleche_bas", 2, 1},
                                              {"raquette_gauche", "fleche_gauche", 1, 0},
                                              {"raquette_droite", "fleche_droite", 1, 2}}};
    for (std::size_t i = 0; i < places.size(); ++i) {
        auto* b = touches_[i] = new QPushButton;
        b->setObjectName(places[i].nom);
        b->setAccessibleName(places[i].nom);
        b->setIcon(QIcon{QString{":/boutons/%1.png"}.arg(places[i].image)});
        b->setIconSize({28, 28});
        b->setFixedSize(44, 44);
        b->setFocusPolicy(Qt::NoFocus); // the arrows hold it, not Space
        croix->addWidget(b, places[i].ligne, places[i].colonne);
        const auto t = static_cast<touche_raquette>(i);
        connect(b, &QPushButton::pressed, this, [this, t] { tient(t); });
        connect(b, &QPushButton::released, this, [this] { lache(); });
    }
    rang->addLayout(croix);
    auto* vitesses = new QVBoxLayout;
    vitesses->addWidget(fait_vitesse("raquette_vitesse_az", "Vitesse azimut", vitesse_az_));
    vitesses->addWidget(fait_vitesse("raquette_vitesse_alt", "Vitesse altitude", vitesse_alt_));
    rang->addLayout(vitesses, 1);
    rang->addWidget(new QLabel{"Maintenir une touche,\nou une flèche du clavier.\nAgit en « mode manuel »."});
}

QWidget* raquette_banc::fait_vitesse(const char* nom, const QString& titre, QSlider*& curseur) {
    auto* w = new QWidget;
    auto* grille = new QGridLayout{w};
    grille->setContentsMargins(0, 6, 0, 0);
    grille->addWidget(new QLabel{titre}, 0, 0, 1, 3);
    curseur = new QSlider{Qt::Horizontal};
    curseur->setObjectName(nom);
    curseur->setAccessibleName(nom);
    curseur->setRange(0, 2);
    curseur->setPageStep(1);
    curseur->setValue(1);
    curseur->setTickPosition(QSlider::TicksBelow);
    curseur->setTickInterval(1);
    grille->addWidget(curseur, 1, 0, 1, 3);
    grille->addWidget(new QLabel{"lente"}, 2, 0, Qt::AlignLeft);
    grille->addWidget(new QLabel{"moyenne"}, 2, 1, Qt::AlignHCenter);
    grille->addWidget(new QLabel{"rapide"}, 2, 2, Qt::AlignRight);
    connect(curseur, &QSlider::valueChanged, this, [this] { presente(); });
    return w;
}

void raquette_banc::ecoute(QWidget* fenetre) {
    fenetre->installEventFilter(this);
    for (auto* w : fenetre->findChildren<QWidget*>())
        if (!qobject_cast<QLineEdit*>(w))
            w->installEventFilter(this);
}

bool raquette_banc::eventFilter(QObject* objet, QEvent* e) {
    switch (e->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto* k = static_cast<QKeyEvent*>(e);
        const auto f = std::find(fleches.begin(), fleches.end(), k->key());
        if (f == fleches.end())
            return false;
        const int i = static_cast<int>(f - fleches.begin());
        if (k->isAutoRepeat())
            return true; // a key held down is held, not pressed again
        if (e->type() == QEvent::KeyPress)
            tient(static_cast<touche_raquette>(i));
        else if (i == tenue_)
            lache();
        return true;
    }
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        if (objet == window())
            lache();
        return false;
    case QEvent::MouseButtonRelease: // also one outside the key that was pressed
        if (std::find(touches_.begin(), touches_.end(), objet) != touches_.end())
            lache();
        return false;
    default:
        return false;
    }
}

void raquette_banc::tient(touche_raquette t) {
    tenue_ = static_cast<int>(t);
    presente();
}

void raquette_banc::lache() {
    tenue_ = -1;
    presente();
}

void raquette_banc::presente() {
    for (std::size_t i = 0; i < touches_.size(); ++i)
        touches_[i]->setDown(static_cast<int>(i) == tenue_);
    const auto t = static_cast<touche_raquette>(tenue_);
    const int code = tenue_ < 0 ? port_simule::sans_touche
                                : code_raquette(t, (verticale(t) ? vitesse_alt_ : vitesse_az_)->value());
    static_cast<void>(port_.presente(code)); // a byte always
}

} // namespace banc
