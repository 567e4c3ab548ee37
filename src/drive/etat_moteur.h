// The drive state: what a motion in progress reads at each use, and any handler in its yields may change.
//
// Line map of the data register, on either mount: 1 step and 2 direction of the altitude (declination) axis,
// 4 step and 8 direction of the azimuth (right ascension) axis. A step is the rise of a step line.
#pragma once

#include "base/entier.h"

#include <array>

namespace cmd_moteur {

using base::booleen16;
using base::entier16;
using base::entier32;

inline entier16 cmdsens;   ///< 0 stop, 1 and 2 azimuth, 3 and 4 altitude; jogs run while it is not 0
inline entier16 bitpas;    ///< step value of the command: 4 azimuth, 1 altitude, 0 none
inline entier16 bitsens;   ///< direction value of the command: 8 or 0 azimuth, 2 or 0 altitude
inline booleen16 sensplus; ///< the current direction is the axis's plus one: steps count up

inline entier16 azplus;  ///< direction value towards larger azimuths; 0 until the position is initialised
inline entier16 azmoins; ///< towards smaller ones
inline entier16 altplus; ///< the same of altitude
inline entier16 altmoins;
inline booleen16 invaz; ///< the commands of the axis are inverted, from `inversion.ini`
inline booleen16 invalt;

inline entier16 classevitaz; ///< speed class of each axis, 0 slowest to 4
inline entier16 classevitalt;
inline entier32 tempopas;    ///< delay count of the jogs and of the sidereal drive
inline entier32 tempopaddle; ///< delay count of the paddle loops
inline booleen16 vitchange;  ///< a speed slider was moved since the program started; never set back

inline int jogs = 0;    ///< jogs on the stack, one inside the other; bursts and slews apart
inline int rafales = 0; ///< bursts of a tracking on the stack
inline int appuis = 0;  ///< presses of a paddle key on the stack

/// Counts one more motion of a kind as long as it lives.
class en_cours {
  public:
    explicit en_cours(int& combien) : combien_(combien) { ++combien_; }
    ~en_cours() { --combien_; }
    en_cours(const en_cours&) = delete;
    en_cours& operator=(const en_cours&) = delete;

  private:
    int& combien_;
};

inline entier32 compteaz; ///< steps since they were last folded into the position, signed
inline entier32 comptealt;

inline entier32 pasencodeaz; ///< steps of all paddle loops since a counting button cleared them
inline entier32 pasencodealt;

inline entier16 codepaddle;     ///< what the last scan of the paddle saw
inline entier16 baselinepaddle; ///< what the program believes it last put on the data register
inline entier32 slotazl;        ///< delay counts of the paddle, azimuth: low, medium and fast speed
inline entier32 slotazm;
inline entier32 slotazr;
inline entier32 slotaltl; ///< the same of altitude
inline entier32 slotaltm;
inline entier32 slotaltr;
inline double jeucourantaz = 0; ///< steps of the last paddle press, cleared when one starts
inline double jeucourantalt = 0;

/// Delay counts by class + 5 x axis (0 azimuth, 1 altitude).
inline std::array<entier32, 10> vitessealtaz;
inline std::array<entier32, 10> vitesseequa;
/// Paddle delay counts by speed + 3 x axis.
inline std::array<entier32, 6> vitessemanu;

inline entier16 nbpasaz;    ///< azimuth steps of a tracking tick
inline double nbpasalt = 0; ///< altitude steps of a tracking tick, read as a 16-bit integer
inline entier32 tempoaz;    ///< delay counts of the two bursts
inline entier32 tempoalt;
inline entier16 nbpassuivi; ///< steps of one second of the sidereal drive

} // namespace cmd_moteur
