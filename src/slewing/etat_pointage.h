// What picker, slews, chart and main frame share about pointing.
//
// Catalogue units: tenths of a minute of time (600 to the hour) for right ascensions, tenths of a minute of
// arc (600 to the degree) for declinations.
#pragma once

#include "base/entier.h"

namespace pointing {

inline base::entier32 ciblead; ///< the target chosen, catalogue units
inline base::entier32 cibledec;

inline double reticulead = 0; ///< where the telescope is taken to point, catalogue units
inline double reticuledec = 0;
/// What an equatorial slew under way has gone beyond the reticle: pulses sent, and the signed way of one.
struct chemin {
    double unite = 0; ///< catalogue units
    double impulsions = 0;
    double parcouru() const { return unite * impulsions; }
};
inline chemin cheminad; ///< both 0 outside a slew
inline chemin chemindec;
inline base::booleen16 reticulevisible; ///< the chart shows that place

inline base::booleen16 panneaualtaz; ///< the alt-azimuth pointing panel is the one in use
inline base::booleen16 modepointage; ///< the chart slews to what is picked; else it aligns on it
inline base::booleen16 stoppointage; ///< a stop of the slew is asked for

// The target of an alt-azimuth slew.
inline double ciblehr = 0;      ///< whole hours of `ciblead`
inline double ciblemin = 0;     ///< its minutes of time, with one decimal
inline base::entier32 cibledeg; ///< whole degrees of `cibledec`, signed
inline double cibledegmin = 0;  ///< its minutes of arc; they keep their sign where the degrees are 0
inline double cibleaz = 0;      ///< azimuth, arcseconds
inline double ciblealt = 0;     ///< altitude, arcseconds
inline double distaz = 0;       ///< way of the last pass, arcseconds, signed
inline double distalt = 0;

inline base::booleen16 invpointad; ///< the equatorial slew's sense is reversed; set by the save button alone
inline base::booleen16 invpointdec;

} // namespace pointing
