// The bench's own window: what comes out of the port, and what a mount would make of it.
#pragma once

#include "bench/etabli.h"
#include "bench/horloge_banc.h"

#include <QWidget>
#include <array>
#include <functional>
#include <string_view>

class QLabel;
class QLineEdit;
class QPushButton;

namespace banc {

class afficheur;
class cadran;
class voyants;

class fenetre_banc final : public QWidget {
  public:
    /// The first two must outlive the window; `temps_reel` tells whether the real-time priority is in force.
    fenetre_banc(etabli& e, horloge_banc& h, std::function<std::string_view()> temps_reel);
    /// Brings every figure up to date; runs ten times a second by itself.
    void rafraichit();
    /// Starts a recording, as the path typed and the button do.
    void enregistre_dans(const QString& chemin);

  protected:
    /// F8, in any window of the program, brings this one back.
    bool eventFilter(QObject* objet, QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void timerEvent(QTimerEvent*) override;
    void closeEvent(QCloseEvent*) override;

  private:
    struct ligne { // one axis
        afficheur* cadence = nullptr;
        afficheur* zero = nullptr; // pulses with the direction line low
        afficheur* leve = nullptr; // and raised
        afficheur* angle = nullptr;
        afficheur* cru = nullptr; // the position the program believes
    };
    QWidget* fait_lignes_du_port();
    QWidget* fait_axes();
    QWidget* fait_horloge();
    QWidget* fait_mesures();
    void bascule_enregistrement();
    void finit_enregistrement();
    void suit_enregistrement();

    etabli& etabli_;
    horloge_banc& horloge_;
    std::function<std::string_view()> temps_reel_;
    voyants* voyants_ = nullptr;
    afficheur* registres_ = nullptr;
    std::array<ligne, 2> axes_;
    std::array<cadran*, 2> cadrans_{};
    afficheur* heure_ = nullptr;
    QLineEdit* date_ = nullptr;
    afficheur* retard_ = nullptr;
    afficheur* priorite_ = nullptr;
    QLineEdit* chemin_ = nullptr;
    QPushButton* enregistre_ = nullptr;
    QLabel* etat_ = nullptr;
    QLabel* planetarium_ = nullptr; // where the program listens to one
    bool placee_ = false;
    bool enregistrement_ = false; ///< one is under way, as far as the window has told
};

} // namespace banc
