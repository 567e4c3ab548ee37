// What a run may put on the port, who may do so, and how it may end.
#pragma once

#include "platform/port.h"

#include <bitset>
#include <cstdint>
#include <string>

namespace singe {

class regles {
  public:
    /// The line that is about to be carried out, and virtual time in ns.
    void ligne(const std::string& l, std::int64_t temps);
    /// What moves a motor now: the control that was acted on, or a timer.
    std::string mouvement() const;
    /// Empty, or what is wrong with this write.
    std::string ecriture(int adresse, std::uint8_t valeur);
    /// Empty, or what is wrong with an end by this failure. `explication` names cause and detail.
    std::string echec(const std::string& explication) const;
    /// Whether a motion of more than a day may be under way: a burst, which nothing stops, with a typed
    /// delay.
    bool rafale_d_un_jour() const;

  private:
    bool sens_permis(unsigned valeur);

    std::string acte_;                // verb and control
    std::string auteur_;              // what the line acts on, if that may write
    std::string raquette_;            // what gave the port to the paddle
    bool attend_ = false;             // the line lets time pass...
    bool ordonnee_ = false;           // ...in which an order or a timer that was on may write
    std::int64_t dernier_ordre_ = -1; // when the last such order is due
    bool quitter_ = false;            // an order to quit was given
    bool fichiers_ = false;           // data files were tampered with
    bool rafales_ = false;            // tracking was on: bursts and jogs may mix their direction values
    std::bitset<256> sens_tapes_;     // low bytes of the direction values typed so far
};

} // namespace singe
