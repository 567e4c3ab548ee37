// The panel of the alt-azimuth mount's mechanics, the site and the object observed, as designed. Its fields
// are the live copy of all three for the whole program. It keeps clear of the right edge that a close of the
// tracking panel takes from it.
#pragma once

#include "store/controles.h"

namespace frmconfig {

using namespace shell;

inline constinit panneau fiche{
    "frmconfig", "Initialisations", 7260, 5835, {.boite_de_fermeture = fermeture::cache}};

inline constinit champ_cadre Frlieu{fiche, "Frlieu", {60, 30, 3750, 1095}, {.legende = "Lieu d'observation"}};
inline constinit champ_etiquette lbllong{
    fiche, "lbllong", {120, 315, 1020, 270}, {.legende = "Longitude", .cadre = &Frlieu}};
inline constinit champ_texte txtdegre{fiche, "txtdegre", {1200, 270, 720, 345}, {.cadre = &Frlieu}};
inline constinit champ_texte txtmin{fiche, "txtmin", {2040, 270, 720, 345}, {.cadre = &Frlieu}};
inline constinit champ_etiquette lbllongmin{
    fiche, "lbllongmin", {2820, 315, 420, 270}, {.legende = "min", .cadre = &Frlieu}};
inline constinit champ_etiquette lbllat{
    fiche, "lbllat", {120, 705, 1020, 270}, {.legende = "Latitude", .cadre = &Frlieu}};
inline constinit champ_texte txtlatdeg{fiche, "txtlatdeg", {1200, 660, 720, 345}, {.cadre = &Frlieu}};
inline constinit champ_texte txtlatmin{fiche, "txtlatmin", {2040, 660, 720, 345}, {.cadre = &Frlieu}};
inline constinit champ_etiquette lbllatmin{
    fiche, "lbllatmin", {2820, 705, 420, 270}, {.legende = "min", .cadre = &Frlieu}};

inline constinit champ_cadre frmeca{
    fiche, "frmeca", {60, 1185, 3750, 2925}, {.legende = "Paramètres mécaniques"}};
inline constinit champ_etiquette lblazimut{
    fiche, "lblazimut", {2310, 240, 660, 270}, {.legende = "Azimut", .cadre = &frmeca}};
inline constinit champ_etiquette lblaltitude{
    fiche, "lblaltitude", {3000, 240, 735, 270}, {.legende = "Altitude", .cadre = &frmeca}};
inline constinit champ_etiquette lblpas{
    fiche, "lblpas", {60, 570, 2250, 270}, {.legende = "Nombre de pas moteur", .cadre = &frmeca}};
inline constinit champ_texte txtpasaz{fiche, "txtpasaz", {2340, 525, 600, 345}, {.cadre = &frmeca}};
inline constinit champ_texte txtpasalt{fiche, "txtpasalt", {3000, 525, 660, 345}, {.cadre = &frmeca}};
inline constinit champ_etiquette lblrapport{
    fiche, "lblrapport", {90, 945, 2100, 270}, {.legende = "Rapports de réduction", .cadre = &frmeca}};
inline constinit champ_texte txtRaz{fiche, "txtRaz", {2340, 900, 600, 345}, {.cadre = &frmeca}};
inline constinit champ_texte txtRalt{fiche, "txtRalt", {3000, 900, 660, 345}, {.cadre = &frmeca}};
inline constinit champ_etiquette lblapas{
    fiche, "lblapas", {90, 1275, 1380, 420}, {.legende = "angle d'un pas a ('')", .cadre = &frmeca}};
inline constinit champ_texte txtapas{fiche, "txtapas", {1500, 1305, 2160, 345}, {.cadre = &frmeca}};
inline constinit champ_etiquette lblhpas{
    fiche, "lblhpas", {90, 1710, 1380, 420}, {.legende = "angle d'un pas h ('')", .cadre = &frmeca}};
inline constinit champ_texte txthpas{fiche, "txthpas", {1500, 1740, 2160, 345}, {.cadre = &frmeca}};
inline constinit champ_etiquette lblplus{
    fiche, "lblplus", {90, 2190, 2100, 270}, {.legende = "sens +", .cadre = &frmeca}};
inline constinit champ_texte txtazplus{
    fiche, "txtazplus", {2340, 2145, 600, 345}, {.legende = "0", .cadre = &frmeca}};
inline constinit champ_texte txtaltplus{
    fiche, "txtaltplus", {3000, 2145, 660, 345}, {.legende = "0", .cadre = &frmeca}};
inline constinit champ_etiquette lblmoins{
    fiche, "lblmoins", {90, 2565, 2100, 270}, {.legende = "sens -", .cadre = &frmeca}};
inline constinit champ_texte txtazmoins{
    fiche, "txtazmoins", {2340, 2520, 600, 345}, {.legende = "8", .cadre = &frmeca}};
inline constinit champ_texte txtaltmoins{
    fiche, "txtaltmoins", {3000, 2520, 660, 345}, {.legende = "2", .cadre = &frmeca}};

inline constinit champ_cadre framecodeur{
    fiche, "framecodeur", {60, 4170, 3750, 1110}, {.legende = "Paramètres codeurs"}};
inline constinit champ_texte txtazencoding{
    fiche, "txtazencoding", {90, 270, 1980, 345}, {.cadre = &framecodeur}};
inline constinit champ_bouton cmdazencoding{
    fiche, "cmdazencoding", {2160, 255, 1500, 375}, {.legende = "init az", .cadre = &framecodeur}};
inline constinit champ_texte txtaltencoding{
    fiche, "txtaltencoding", {90, 675, 1980, 345}, {.cadre = &framecodeur}};
inline constinit champ_bouton cmdaltencoding{
    fiche, "cmdaltencoding", {2160, 660, 1500, 375}, {.legende = "init alt", .cadre = &framecodeur}};

inline constinit champ_cadre Frobservation{
    fiche, "Frobservation", {3870, 30, 3180, 3735}, {.legende = "Coordonnées de l'objet observé"}};
inline constinit champ_etiquette lblad{
    fiche, "lblad", {120, 315, 450, 270}, {.legende = "A.D", .cadre = &Frobservation}};
inline constinit champ_texte Txtad_h{fiche, "Txtad_h", {600, 270, 480, 345}, {.cadre = &Frobservation}};
inline constinit champ_etiquette lblad_h{
    fiche, "lblad_h", {1125, 315, 180, 270}, {.legende = "h", .cadre = &Frobservation}};
inline constinit champ_texte txtad_min{fiche, "txtad_min", {1320, 270, 1080, 345}, {.cadre = &Frobservation}};
inline constinit champ_etiquette lblad_min{
    fiche, "lblad_min", {2460, 315, 420, 270}, {.legende = "min", .cadre = &Frobservation}};
inline constinit champ_etiquette lbldec{
    fiche, "lbldec", {120, 705, 450, 270}, {.legende = "déc.", .cadre = &Frobservation}};
inline constinit champ_texte txtsign{
    fiche, "txtsign", {600, 660, 300, 345}, {.cadre = &Frobservation, .traits = centre}};
inline constinit champ_texte txtdec_deg{fiche, "txtdec_deg", {945, 660, 480, 345}, {.cadre = &Frobservation}};
inline constinit champ_texte txtdec_min{
    fiche, "txtdec_min", {1470, 660, 930, 345}, {.cadre = &Frobservation}};
inline constinit champ_etiquette lbldec_min{
    fiche, "lbldec_min", {2460, 705, 420, 270}, {.legende = "min", .cadre = &Frobservation}};
inline constinit champ_liste lbCatalogue{
    fiche, "lbCatalogue", {120, 1080, 2940, 990}, {.cadre = &Frobservation}};
inline constinit champ_liste lbObjets{fiche, "lbObjets", {120, 2130, 2940, 1035}, {.cadre = &Frobservation}};
inline constinit champ_bouton cmdchoix{
    fiche, "cmdchoix", {120, 3225, 2940, 420}, {.cadre = &Frobservation, .image = "choix"}};

inline constinit champ_bouton cmdinitcoord{
    fiche, "cmdinitcoord", {3870, 3855, 3180, 420}, {.legende = "initialisation coordonnées"}};
inline constinit champ_bouton cmdreinit{
    fiche, "cmdreinit", {3870, 4335, 1605, 420}, {.legende = "Réinitialisation"}};
inline constinit champ_bouton cmdbacklash{
    fiche, "cmdbacklash", {5535, 4335, 1320, 420}, {.legende = "backlash"}};
inline constinit champ_bouton cmdvalid{fiche, "cmdvalid", {3870, 4815, 945, 465}, {.image = "valider"}};
inline constinit champ_bouton cmdfermer{fiche, "cmdfermer", {4890, 4815, 945, 465}, {.image = "fermer"}};
inline constinit champ_bouton cmdaide{fiche, "cmdaide", {5910, 4815, 945, 465}, {.image = "aide"}};

inline std::vector<controle*> controles() {
    return liste(Frlieu, lbllong, txtdegre, txtmin, lbllongmin, lbllat, txtlatdeg, txtlatmin, lbllatmin,
                 frmeca, lblazimut, lblaltitude, lblpas, txtpasaz, txtpasalt, lblrapport, txtRaz, txtRalt,
                 lblapas, txtapas, lblhpas, txthpas, lblplus, txtazplus, txtaltplus, lblmoins, txtazmoins,
                 txtaltmoins, framecodeur, txtazencoding, cmdazencoding, txtaltencoding, cmdaltencoding,
                 Frobservation, lblad, Txtad_h, lblad_h, txtad_min, lblad_min, lbldec, txtsign, txtdec_deg,
                 txtdec_min, lbldec_min, lbCatalogue, lbObjets, cmdchoix, cmdinitcoord, cmdreinit,
                 cmdbacklash, cmdvalid, cmdfermer, cmdaide);
}

} // namespace frmconfig
