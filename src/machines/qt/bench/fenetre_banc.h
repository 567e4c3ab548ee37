// The bench's own window: what comes out of the port, and what a mount would make of it.
#pragma once

#include "bench/etabli.h"
#include "bench/horloge_banc.h"

#include <QWidget>
#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace banc {

class cadran;
class voyants;

class fenetre_banc final : public QWidget {
  public:
    /// Both must outlive the window.
    fenetre_banc(etabli& e, horloge_banc& h);
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
        QLabel* cadence = nullptr;
        QLabel* zero = nullptr; // pulses with the direction line low
        QLabel* leve = nullptr; // and raised
        QLabel* angle = nullptr;
        QLabel* cru = nullptr; // the position the program believes
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
    voyants* voyants_ = nullptr;
    QLabel* registres_ = nullptr;
    std::array<ligne, 2> axes_;
    std::array<cadran*, 2> cadrans_{};
    QLabel* heure_ = nullptr;
    QLineEdit* date_ = nullptr;
    QLabel* retard_ = nullptr;
    QLineEdit* chemin_ = nullptr;
    QPushButton* enregistre_ = nullptr;
    QLabel* etat_ = nullptr;
    QLabel* planetarium_ = nullptr; // where the program listens to one
    bool placee_ = false;
    bool enregistrement_ = false; ///< one is under way, as far as the window has told
};

} // namespace banc
