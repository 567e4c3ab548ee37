#include "chart/vue_carte.h"

#include "chart/etat_carte.h"

namespace chart {

using base::entier16;

namespace {

constexpr entier16 zoom_avec_lettres = 4;

void pose_zoom(entier16 zoom) {
    zoomcercle = zoom;
    rayoncercle = zoom.reel() * rayon_unite;
    lettresgrecques = zoom >= zoom_avec_lettres;
}

} // namespace

void initialise_vue() {
    if (cercleinit)
        return;
    raz_vue();
    reperevisible = true;
    constvisible = true;
    filtrecercle = 1;
    cataloguecercle = "messier";
    cercleinit = true;
}

void zoome(entier16 zoom) {
    offsetx = zoom.reel() * offsetx / zoomcercle.reel();
    offsety = zoom.reel() * offsety / zoomcercle.reel();
    pose_zoom(zoom);
}

void tourne(entier16 degres) { rotcercle = {(rotcercle + degres) % 360, "rotcercle"}; }

void raz_vue() {
    pose_zoom(1);
    offsetx = 0;
    offsety = 0;
    rotcercle = 0;
}

} // namespace chart
