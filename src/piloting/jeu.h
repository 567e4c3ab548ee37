// The backlash measured with the paddle. A figure for the observer: no motion uses it.
#pragma once

namespace piloting {

inline double backlashaz = 0; ///< steps of the paddle
inline double backlashalt = 0;

} // namespace piloting
