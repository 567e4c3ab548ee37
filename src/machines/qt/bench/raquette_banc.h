// The hand paddle of the bench: four keys and a speed switch for each axis, held with the mouse or the arrow
// keys, which make on the simulated registers what the real one makes on the port.
#pragma once

#include "bench/port_simule.h"

#include <QGroupBox>
#include <array>

class QPushButton;
class QSlider;

namespace banc {

enum class touche_raquette { haut, bas, gauche, droite };

/// The code of a key at a speed: 0 slow, 1 medium, 2 fast.
int code_raquette(touche_raquette t, int vitesse);

class raquette_banc final : public QGroupBox {
  public:
    /// `p` must outlive the paddle.
    raquette_banc(port_simule& p, QWidget* parent);
    /// Takes the arrow keys of the whole window, but for its text fields. To be called once all its widgets
    /// stand.
    void ecoute(QWidget* fenetre);
    /// No key is held any more.
    void lache();

  protected:
    bool eventFilter(QObject* objet, QEvent* e) override;

  private:
    QWidget* fait_vitesse(const char* nom, const QString& titre, QSlider*& curseur);
    void tient(touche_raquette t);
    void presente();

    port_simule& port_;
    std::array<QPushButton*, 4> touches_{}; // by `touche_raquette`
    QSlider* vitesse_az_ = nullptr;
    QSlider* vitesse_alt_ = nullptr;
    int tenue_ = -1; // the key held, -1 for none
};

} // namespace banc
