// The tracking panel of the alt-azimuth mount, as designed.
#pragma once

#include "store/controles.h"

namespace frmaltazsuivi {

using namespace shell;

inline constinit panneau fiche{"frmaltazsuivi", "Suivi sidéral", 6600, 5415};

inline constinit champ_etiquette Lblad{fiche, "Lblad", {120, 165, 480, 270}, {.legende = "A.D"}};
inline constinit champ_texte Txtad_h{fiche, "Txtad_h", {660, 120, 480, 345}, {.traits = centre}};
inline constinit champ_etiquette lblad_h{fiche, "lblad_h", {1185, 165, 180, 270}, {.legende = "h"}};
inline constinit champ_texte txtad_min{fiche, "txtad_min", {1380, 120, 2130, 345}};
inline constinit champ_etiquette lblad_s{fiche, "lblad_s", {3555, 165, 420, 270}, {.legende = "min"}};
inline constinit champ_etiquette Lbldec{fiche, "Lbldec", {120, 585, 480, 270}, {.legende = "déc."}};
inline constinit champ_texte txtsign{fiche, "txtsign", {660, 540, 300, 345}, {.traits = centre}};
inline constinit champ_texte txtdec_deg{fiche, "txtdec_deg", {1005, 540, 480, 345}, {.traits = centre}};
inline constinit champ_texte txtdec_min{fiche, "txtdec_min", {1530, 540, 2130, 345}};
inline constinit champ_etiquette lbldec_min{fiche, "lbldec_min", {3705, 585, 420, 270}, {.legende = "min"}};

inline constinit champ_etiquette Label1{
    fiche, "Label1", {4770, 165, 1530, 270}, {.legende = "Heure sidérale"}};
inline constinit champ_texte txth2{fiche, "txth2", {4770, 540, 480, 345}, {.traits = centre}};
inline constinit champ_texte txtmin2{fiche, "txtmin2", {5295, 540, 480, 345}, {.traits = centre}};
inline constinit champ_texte txts2{fiche, "txts2", {5820, 540, 480, 345}, {.traits = centre}};

inline constinit champ_etiquette Label2{fiche, "Label2", {1560, 1035, 2130, 270}, {.legende = "Azimut"}};
inline constinit champ_etiquette Label3{fiche, "Label3", {4170, 1035, 2130, 270}, {.legende = "Altitude"}};
inline constinit champ_etiquette Label4{fiche, "Label4", {120, 1365, 900, 270}, {.legende = "Position"}};
inline constinit champ_texte txtah{fiche, "txtah", {1035, 1320, 480, 345}, {.traits = centre}};
inline constinit champ_texte txtamin{fiche, "txtamin", {1560, 1320, 2100, 345}};
inline constinit champ_texte txthh{fiche, "txthh", {3705, 1320, 420, 345}, {.traits = centre}};
inline constinit champ_texte txthmin{fiche, "txthmin", {4170, 1320, 2130, 345}};
inline constinit champ_etiquette Label5{
    fiche, "Label5", {120, 1710, 1410, 420}, {.legende = "Nombre de pas à effectuer"}};
inline constinit champ_texte txtna{fiche, "txtna", {1560, 1740, 2130, 345}};
inline constinit champ_texte txtnh{fiche, "txtnh", {4170, 1740, 2130, 345}};
inline constinit champ_etiquette Label6{
    fiche, "Label6", {120, 2130, 1410, 420}, {.legende = "Somme des restes"}};
inline constinit champ_texte txtsommea{fiche, "txtsommea", {1560, 2160, 2130, 345}};
inline constinit champ_texte txtsommeh{fiche, "txtsommeh", {4170, 2160, 2130, 345}};
inline constinit champ_etiquette Label7{fiche, "Label7", {120, 2625, 1410, 270}, {.legende = "Attente"}};
inline constinit champ_texte txttempoa{fiche, "txttempoa", {1560, 2580, 2130, 345}};
inline constinit champ_texte txttempoh{fiche, "txttempoh", {4170, 2580, 2130, 345}};

inline constinit champ_etiquette Label8{fiche, "Label8", {120, 3045, 1410, 270}, {.legende = "Incrément"}};
inline constinit champ_texte txtincrement{fiche, "txtincrement", {1560, 3000, 870, 345}};
inline constinit champ_hautbas updowntaux{fiche, "updowntaux", {2430, 3000, 255, 345}};
inline constinit champ_etiquette Label9{fiche, "Label9", {2760, 3045, 420, 270}, {.legende = "ms"}};

inline constinit champ_cadre Frame1{
    fiche, "Frame1", {120, 3480, 6180, 720}, {.legende = "Inversion des sens de rotation"}};
inline constinit champ_coche chksuiviaz{
    fiche, "chksuiviaz", {120, 285, 2700, 330}, {.legende = "A.D. \\ Azimut", .cadre = &Frame1}};
inline constinit champ_coche chksuivialt{
    fiche, "chksuivialt", {3120, 285, 2940, 330}, {.legende = "Déclinaison \\ Altitude", .cadre = &Frame1}};

inline constinit champ_bouton cmdcalcul{fiche, "cmdcalcul", {120, 4350, 1140, 420}, {.legende = "&Calcul"}};
inline constinit champ_bouton cmdstop{fiche, "cmdstop", {1365, 4350, 1140, 420}, {.legende = "Pause"}};
inline constinit champ_bouton cmdraquette{
    fiche, "cmdraquette", {2610, 4350, 1140, 420}, {.legende = "Raquette"}};
inline constinit champ_bouton cmdsave{fiche, "cmdsave", {3855, 4350, 1200, 420}, {.legende = "Sauvegarde"}};
inline constinit champ_bouton Cmdquit{fiche, "Cmdquit", {5160, 4350, 1140, 420}, {.legende = "quitter"}};

inline constinit minuteur timcompteur{fiche, "timcompteur", {.intervalle = 1000}};

inline std::vector<controle*> controles() {
    return liste(Lblad, Txtad_h, lblad_h, txtad_min, lblad_s, Lbldec, txtsign, txtdec_deg, txtdec_min,
                 lbldec_min, Label1, txth2, txtmin2, txts2, Label2, Label3, Label4, txtah, txtamin, txthh,
                 txthmin, Label5, txtna, txtnh, Label6, txtsommea, txtsommeh, Label7, txttempoa, txttempoh,
                 Label8, txtincrement, updowntaux, Label9, Frame1, chksuiviaz, chksuivialt, cmdcalcul,
                 cmdstop, cmdraquette, cmdsave, Cmdquit, timcompteur);
}

} // namespace frmaltazsuivi
