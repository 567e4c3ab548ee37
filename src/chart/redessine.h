// The drawing of the sky chart: polar, azimuthal equidistant, centred on the pole. A fixed map, which knows
// neither time nor site.
#pragma once

namespace chart {

struct point {
    double x;
    double y;
};

/// The place on the chart, in chart units, of a right ascension and a declination in catalogue units, under
/// the present view. Right ascension 0 lies to the right of the pole and grows clockwise; the radius grows
/// with the distance from the pole, also beyond the equator. What is added to the centre is rounded down.
/// Fatal (`depassement`) if it is not finite.
point projette(double ad, double dec);

/// Draws the chart anew under the present view: reads the stars, the lines and the objects, fills the tables
/// that a pick searches, sets captions and the zoom's tick, and has the window painted. Loads the chart.
/// Fatal: a missing or short file, more records than the tables hold, a line of a star beyond the table.
void redessine();

} // namespace chart
