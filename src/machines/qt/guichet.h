// The TCP door by which planetariums reach the program.
#pragma once

#include "machines/qt/lance.h"
#include "remote/planetarium.h"

#include <QObject>
#include <string>
#include <vector>

namespace plateforme::qt {

/// Listens from its making on. What comes is left to the kernel until the next tick, in a motion's yields
/// too, and read there by portions: no flood of commands takes more than its share of a motion, and no socket
/// is watched at each yield, which would cost the fastest jog an eighth of its pulses. Two clients at once; a
/// third is let go, and so is one that does not read its answers.
class guichet final : public QObject {
  public:
    explicit guichet(adresse_du_guichet ou);
    ~guichet() override;

    /// Why it does not listen, in French; empty if it does.
    const std::string& faute() const { return faute_; }
    /// For the observer: what it listens on, who is connected, what was refused last.
    std::string etat() const;

  protected:
    void timerEvent(QTimerEvent* e) override;

  private:
    struct client {
        int prise;
        std::string adresse;
        planetarium::liaison liaison;
        std::string a_dire; // what the kernel has not taken yet
    };
    void ouvre();
    void accueille();
    bool sert(client& c);
    void arme();

    adresse_du_guichet ou_;
    int ecoute_ = -1;
    std::string faute_;
    std::vector<client> clients_;
    planetarium::numero suivant_ = 1;
};

/// That of this process, or null: what its windows tell of it.
inline const guichet* guichet_ouvert = nullptr;

} // namespace plateforme::qt
