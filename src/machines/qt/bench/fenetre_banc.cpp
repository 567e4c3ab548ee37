#include "machines/qt/bench/fenetre_banc.h"

#include "bench/unites.h"
#include "drive/position.h"
#include "fields/frminterface_champs.h"
#include "machines/qt/bench/afficheur.h"
#include "machines/qt/bench/cadran.h"
#include "machines/qt/bench/raquette_banc.h"
#include "machines/qt/bench/voyants.h"
#include "machines/qt/guichet.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/places.h"
#include "machines/qt/preferences.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace banc {

namespace {

constexpr int periode_ms = 100;

// Degrees, minutes, seconds; the sign stands once, in front.
QString angle(double secondes) {
    const auto dixiemes = std::llround(std::fabs(secondes) * 10);
    return QString{"%1%2° %3' %4,%5''"}
        .arg(secondes < 0 && dixiemes > 0 ? QStringLiteral("−") : QString{})
        .arg(dixiemes / 36000)
        .arg(dixiemes / 600 % 60, 2, 10, QChar{'0'})
        .arg(dixiemes / 10 % 60, 2, 10, QChar{'0'})
        .arg(dixiemes % 10);
}

// A label is painted only when its text changes: each repaint delays a pulse.
void ecrit(QLabel* l, const QString& texte) {
    if (l->text() != texte)
        l->setText(texte);
}

// What each gauge tells, by its name.
constexpr std::pair<const char*, const char*> bulles[] = {
    {"voyants",
     "Les huit lignes de données, de 128 à 1 ; les moteurs avancent quand leur ligne de pas s'allume"},
    {"registres", "Données (888) et contrôle (890) : 1 ordinateur, 11 raquette"},
    {"cadence_az", "Impulsions par seconde du premier axe"},
    {"cadence_alt", "Impulsions par seconde du second axe"},
    {"sens0_az", "Impulsions envoyées avec la ligne de sens éteinte"},
    {"sens0_alt", "Impulsions envoyées avec la ligne de sens éteinte"},
    {"sens8_az", "Impulsions envoyées avec la ligne de sens allumée"},
    {"sens2_alt", "Impulsions envoyées avec la ligne de sens allumée"},
    {"angle_az", "Où la monture simulée se trouve vraiment"},
    {"angle_alt", "Où la monture simulée se trouve vraiment"},
    {"cru_az", "Où le programme croit qu'elle se trouve"},
    {"cru_alt", "Où le programme croit qu'elle se trouve"},
    {"cadran_az", "L'azimut réel, le nord en haut"},
    {"cadran_alt", "L'altitude réelle, l'horizon à droite"},
    {"pose", "La monture simulée est mise où le programme la croit"},
    {"zero", "Remet à zéro les impulsions comptées, pas les angles"},
    {"heure", "L'horloge que le programme lit"},
    {"date", "Par exemple 2001-08-15 22:00:00"},
    {"regle", "Met l'horloge à l'instant tapé"},
    {"cette_nuit", "Le ciel de cette nuit, porté dans les années de l'almanach"},
    {"retard", "De combien la plus longue demi-impulsion a dépassé son temps"},
    {"oublie_retard", "Recommence la mesure du retard"},
    {"temps_reel",
     "Si les moteurs passent avant les autres programmes : ordonnancement à tour de rôle de Linux"},
    {"chemin_vcd", "Fichier de l'enregistrement des lignes"},
};

QPushButton* bouton(const char* nom, const QString& texte) {
    auto* b = new QPushButton{texte};
    b->setObjectName(nom);
    b->setAccessibleName(nom);
    return b;
}

} // namespace

fenetre_banc::fenetre_banc(etabli& e, horloge_banc& h, std::function<std::string_view()> temps_reel)
    : etabli_(e), horloge_(h), temps_reel_(std::move(temps_reel)) {
    setObjectName("banc");
    setWindowTitle("Velmoria : banc d'essai (F8 le ramène)");
    qApp->installEventFilter(this);
    auto* contenu = new QWidget;
    auto* colonne = new QVBoxLayout{contenu};
    colonne->addWidget(fait_lignes_du_port());
    colonne->addWidget(fait_axes());
    auto* raquette = new raquette_banc{etabli_.port(), this};
    colonne->addWidget(raquette);
    colonne->addWidget(fait_horloge());
    colonne->addWidget(fait_mesures());
    // Scrolled on a screen that is too low for it.
    auto* rouleau = new QScrollArea;
    rouleau->setWidget(contenu);
    rouleau->setWidgetResizable(true);
    rouleau->setFrameShape(QFrame::NoFrame);
    rouleau->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* tout = new QVBoxLayout{this};
    tout->setContentsMargins(0, 0, 0, 0);
    tout->addWidget(rouleau);
    raquette->ecoute(this);
    for (const auto& [nom, texte] : bulles)
        findChild<QWidget*>(nom)->setToolTip(texte);
    rafraichit();
    resize(contenu->sizeHint() + QSize{rouleau->verticalScrollBar()->sizeHint().width(), 0});
    startTimer(periode_ms);
}

// A key reaches its window first, once, whichever it is.
bool fenetre_banc::eventFilter(QObject* objet, QEvent* e) {
    if (e->type() == QEvent::KeyPress && objet->isWindowType() &&
        static_cast<QKeyEvent*>(e)->key() == Qt::Key_F8) {
        show();
        raise();
        activateWindow();
    }
    return false;
}

// The first time beside the main frame; on a screen too narrow for that, below its toolbars.
void fenetre_banc::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (!placee_)
        placee_ = plateforme::qt::reprend_sa_place(*this);
    constexpr int bordure = 8; // at each side, and above, what the window system may put around a window
    constexpr int titre = 32;
    for (auto* w : QApplication::topLevelWidgets()) {
        const auto* principale = qobject_cast<QMainWindow*>(w);
        if (!principale || !principale->isVisible() || std::exchange(placee_, true))
            continue;
        const auto ecran = w->screen()->availableGeometry();
        if (!plateforme::qt::place_retenue(w->objectName()))
            w->move(ecran.topLeft());
        const int a_cote = ecran.left() + w->width() + 2 * bordure;
        const int x = std::min(a_cote, ecran.right() + 1 - bordure - width());
        const int y = ecran.top() + (x < a_cote ? titre + principale->centralWidget()->y() : 0);
        if (const int reste = ecran.bottom() + 1 - y - titre - bordure; height() > reste)
            resize(width(), reste);
        move(x, y);
    }
}

QWidget* fenetre_banc::fait_lignes_du_port() {
    auto* groupe = new QGroupBox{"Lignes du port"};
    auto* colonne = new QVBoxLayout{groupe};
    voyants_ = new voyants;
    voyants_->setObjectName("voyants");
    registres_ = new afficheur{"registres", "registre 888 : 255     registre 890 : 255", Qt::AlignLeft};
    colonne->addWidget(voyants_);
    colonne->addWidget(registres_);
    return groupe;
}

QWidget* fenetre_banc::fait_axes() {
    auto* groupe = new QGroupBox{"Monture"};
    auto* grille = new QGridLayout{groupe};
    int ligne_de_titre = 1;
    for (const auto* titre : {"impulsions/s", "sens 0", "sens levé", "angle réel", "position crue"})
        grille->addWidget(new QLabel{titre}, ligne_de_titre++, 0);
    static constexpr const char* noms[2][5] = {
        {"cadence_az", "sens0_az", "sens8_az", "angle_az", "cru_az"},
        {"cadence_alt", "sens0_alt", "sens2_alt", "angle_alt", "cru_alt"}};
    // Azimuth from the top clockwise, as on a map; altitude from the right, upwards, as seen from the side.
    cadrans_ = {new cadran{0, 1}, new cadran{90, -1}};
    cadrans_[0]->setObjectName("cadran_az");
    cadrans_[1]->setObjectName("cadran_alt");
    for (int a = 0; a < 2; ++a) {
        auto& l = axes_[static_cast<std::size_t>(a)];
        const auto* axe = a == 0 ? "Azimut (A.D)" : "Altitude (Déc.)";
        grille->addWidget(new QLabel{axe}, 0, a + 1, Qt::AlignRight);
        int rang = 0;
        for (auto** champ : {&l.cadence, &l.zero, &l.leve, &l.angle, &l.cru}) {
            *champ = new afficheur{noms[a][rang++], "−0000° 00' 00,0''", Qt::AlignRight};
            grille->addWidget(*champ, rang, a + 1, Qt::AlignRight);
        }
        grille->addWidget(new QLabel{axe}, 0, a + 3, Qt::AlignHCenter);
        grille->addWidget(cadrans_[static_cast<std::size_t>(a)], 1, a + 3, 5, 1, Qt::AlignCenter);
    }

    auto* boutons = new QHBoxLayout;
    auto* pose = bouton("pose", "Poser la monture à la position crue");
    auto* zero = bouton("zero", "Remettre les comptes à zéro");
    QObject::connect(pose, &QPushButton::clicked, this, [this] {
        etabli_.mount().pose(general::posaz, general::posalt);
        rafraichit();
    });
    QObject::connect(zero, &QPushButton::clicked, this, [this] {
        etabli_.mount().zero();
        rafraichit();
    });
    boutons->addWidget(pose);
    boutons->addWidget(zero);
    grille->addLayout(boutons, 6, 0, 1, 5);
    return groupe;
}

QWidget* fenetre_banc::fait_horloge() {
    auto* groupe = new QGroupBox{"Horloge de l'ordinateur, vue par le programme"};
    auto* rang = new QHBoxLayout{groupe};
    heure_ = new afficheur{"heure", "0000-00-00 00:00:00", Qt::AlignLeft};
    date_ = new plateforme::qt::ligne_de_texte;
    date_->setObjectName("date");
    date_->setAccessibleName("date");
    date_->setPlaceholderText("2001-08-15 22:00:00");
    auto* regle = bouton("regle", "Régler");
    auto* revient = bouton("cette_nuit", "Cette nuit");
    const auto met_a_l_heure = [this] {
        const auto i = plateforme::lit_date(date_->text().trimmed().toStdString());
        if (i) {
            horloge_.regle(*i);
        } else { // nothing is set
            date_->selectAll();
            QToolTip::showText(date_->mapToGlobal(QPoint{0, date_->height()}),
                               "Date non comprise, rien n'est réglé. Par exemple : 2001-08-15 22:00:00");
        }
        rafraichit();
    };
    QObject::connect(regle, &QPushButton::clicked, this, met_a_l_heure);
    QObject::connect(date_, &QLineEdit::returnPressed, this, met_a_l_heure);
    QObject::connect(revient, &QPushButton::clicked, this, [this] {
        horloge_.revient();
        rafraichit();
    });
    rang->addWidget(heure_);
    rang->addWidget(date_, 1);
    rang->addWidget(regle);
    rang->addWidget(revient);
    return groupe;
}

QWidget* fenetre_banc::fait_mesures() {
    auto* groupe = new QGroupBox{"Mesures"};
    auto* grille = new QGridLayout{groupe};
    retard_ = new afficheur{"retard", "0000000000,0 µs", Qt::AlignLeft};
    priorite_ = new afficheur{"temps_reel", "non, attentes trop courtes", Qt::AlignLeft};
    auto* oublie = bouton("oublie_retard", "Remettre à zéro");
    QObject::connect(oublie, &QPushButton::clicked, this, [this] {
        etabli_.oublie_retard();
        rafraichit();
    });
    grille->addWidget(new QLabel{"Pire retard d'une demi-impulsion"}, 0, 0);
    grille->addWidget(retard_, 0, 1);
    grille->addWidget(oublie, 0, 2);
    grille->addWidget(new QLabel{"Priorité de temps réel"}, 1, 0);
    grille->addWidget(priorite_, 1, 1, 1, 2);

    chemin_ = new plateforme::qt::ligne_de_texte{QDir::home().filePath("velmoria.vcd")};
    chemin_->setObjectName("chemin_vcd");
    enregistre_ = bouton("enregistre", "Enregistrer les lignes");
    etat_ = new QLabel;
    etat_->setObjectName("etat_vcd");
    etat_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long path makes no window wider
    QObject::connect(enregistre_, &QPushButton::clicked, this, [this] { bascule_enregistrement(); });
    grille->addWidget(new QLabel{"Enregistrement (VCD)"}, 2, 0);
    grille->addWidget(enregistre_, 2, 2);
    grille->addWidget(chemin_, 3, 0, 1, 3);
    grille->addWidget(etat_, 4, 0, 1, 3);
    grille->setColumnStretch(1, 1);
    if (plateforme::qt::guichet_ouvert) {
        planetarium_ = new QLabel;
        planetarium_->setObjectName("planetarium");
        planetarium_->setWordWrap(true);
        planetarium_->setMinimumHeight(
            3 * fontMetrics().lineSpacing()); // no text of it changes the window's size
        planetarium_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        grille->addWidget(planetarium_, 5, 0, 1, 3);
    }
    return groupe;
}

void fenetre_banc::enregistre_dans(const QString& chemin) {
    chemin_->setText(chemin);
    bascule_enregistrement();
}

void fenetre_banc::bascule_enregistrement() {
    if (enregistrement_) {
        finit_enregistrement();
        return;
    }
    const auto chemin = QDir::toNativeSeparators(chemin_->text());
    enregistrement_ = etabli_.enregistre(plateforme::qt::lu(chemin));
    etat_->setText((enregistrement_ ? "Enregistrement en cours dans " : "Impossible d'écrire ") + chemin);
    if (enregistrement_)
        enregistre_->setText("Arrêter l'enregistrement");
    chemin_->setEnabled(!enregistrement_);
}

void fenetre_banc::finit_enregistrement() {
    enregistrement_ = false;
    const bool complet = etabli_.cesse_d_enregistrer();
    const auto chemin = QDir::toNativeSeparators(chemin_->text());
    etat_->setText(complet ? "Enregistré dans " + chemin
                           : "L'enregistrement dans " + chemin + " est incomplet.");
    enregistre_->setText("Enregistrer les lignes");
    chemin_->setEnabled(true);
}

// With every refresh; a disk that has filled up is told without waiting for the button.
void fenetre_banc::suit_enregistrement() {
    etabli_.rince();
    if (!etabli_.enregistre_encore())
        finit_enregistrement();
}

void fenetre_banc::rafraichit() {
    auto& port = etabli_.port();
    auto& monture = etabli_.mount();
    voyants_->montre(port.donnees());
    registres_->montre(
        QString{"registre 888 : %1     registre 890 : %2"}.arg(port.donnees()).arg(port.controle()));

    const auto n = monture.compte();
    const auto u = unites_du_mode();
    const auto a = monture.position(u.az, u.alt);
    const auto maintenant = etabli_.maintenant();
    const std::array<double, 2> reels{a.az, a.alt};
    const std::array<double, 2> crus{general::posaz, general::posalt};
    const std::array<std::array<std::uint64_t, 2>, 2> comptes{{{n.az0, n.az8}, {n.alt0, n.alt2}}};
    // The equatorial mount's position is no angle of an axis: it is not counted in steps.
    const bool compte = frminterface::baraltaz.regarde().visible;
    for (std::size_t i = 0; i < 2; ++i) {
        const auto cadence = monture.cadence(i == 0 ? axe::azimut : axe::altitude, maintenant);
        axes_[i].cadence->montre(QString::number(cadence, 'f', cadence < 100 ? 1 : 0).replace('.', ','));
        axes_[i].zero->montre(QString::number(comptes[i][0]));
        axes_[i].leve->montre(QString::number(comptes[i][1]));
        axes_[i].angle->montre(angle(reels[i]));
        axes_[i].cru->montre(compte ? angle(crus[i]) : QStringLiteral("—"));
        cadrans_[i]->montre(reels[i]);
    }
    const auto t = horloge_.maintenant();
    heure_->montre(QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", t.annee, t.mois, t.jour, t.heure,
                                     t.minute, t.seconde));
    retard_->montre(
        QString::number(static_cast<double>(etabli_.pire_retard()) / 1000.0, 'f', 1).replace('.', ',') +
        " µs");
    const auto priorite = temps_reel_();
    priorite_->montre(QString::fromUtf8(priorite.data(), static_cast<qsizetype>(priorite.size())));
    if (planetarium_ && plateforme::qt::guichet_ouvert)
        ecrit(planetarium_, plateforme::qt::affiche(plateforme::qt::guichet_ouvert->etat()));
}

void fenetre_banc::timerEvent(QTimerEvent*) {
    rafraichit();
    if (enregistrement_)
        suit_enregistrement();
}

// Nothing would be left to end it with.
void fenetre_banc::closeEvent(QCloseEvent* e) {
    if (enregistrement_)
        finit_enregistrement();
    QWidget::closeEvent(e);
}

} // namespace banc
