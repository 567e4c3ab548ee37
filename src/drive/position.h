// Where the telescope points and how far a step goes, on an alt-azimuth mount.
#pragma once

namespace general {

inline double posaz = 0;     ///< azimuth, arcseconds, from north through east
inline double posalt = 0;    ///< altitude, arcseconds above the horizon
inline double angpasaz = 0;  ///< arcseconds of azimuth a step
inline double angpasalt = 0; ///< arcseconds of altitude a step
inline double ecartaz = 0;   ///< azimuth change of a tracking tick, arcseconds, signed
inline double ecartalt = 0;  ///< altitude change of a tracking tick, arcseconds, signed

} // namespace general
