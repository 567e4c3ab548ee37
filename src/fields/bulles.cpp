#include "fields/bulles.h"

#include "seam/plateforme.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace bulles {

namespace {

struct ligne {
    std::string_view nom; // "panel.control", with its place in an array or without, for all of it
    std::string_view texte;
};

constexpr std::array lignes{
    ligne{"frminterface.barchoix(1)", "Choisit une monture équatoriale"},
    ligne{"frminterface.barchoix(2)", "Choisit une monture altazimutale"},
    ligne{"frminterface.barequa(1)", "L'ordinateur commande : la raquette n'est plus lue"},
    ligne{"frminterface.barequa(2)", "La raquette commande : les panneaux de travail se ferment"},
    ligne{"frminterface.barequa(3)", "Flèches et vitesses : bouger à la main depuis l'écran"},
    ligne{"frminterface.barequa(4)", "Catalogues : aligner, puis pointer un objet"},
    ligne{"frminterface.barequa(5)", "Mécanique de la monture"},
    ligne{"frminterface.baraltaz(1)", "L'ordinateur commande : la raquette n'est plus lue"},
    ligne{"frminterface.baraltaz(2)", "La raquette commande : les panneaux de travail se ferment"},
    ligne{"frminterface.baraltaz(3)", "Flèches et vitesses : bouger à la main depuis l'écran"},
    ligne{"frminterface.baraltaz(4)", "Catalogues : aligner, puis pointer un objet"},
    ligne{"frminterface.baraltaz(5)", "Suivre le ciel avec les deux moteurs"},
    ligne{"frminterface.baraltaz(6)", "Lieu, mécanique, objet observé, alignement"},
    ligne{"frminterface.baraltaz(7)", "Montre ou cache l'heure et la position"},
    ligne{"frminterface.bargeneral", "Mode de pilotage, monture, carnet, aide"},

    ligne{"frmcoord.txth", "Heure du temps universel"},
    ligne{"frmcoord.txtmin", "Minute du temps universel"},
    ligne{"frmcoord.txts", "Seconde du temps universel"},
    ligne{"frmcoord.txtms", "Millisecondes, pendant le suivi seulement"},
    ligne{"frmcoord.cbjour", "Jour, pris en compte à la prochaine lecture de l'almanach"},
    ligne{"frmcoord.cbmois", "Mois, pris en compte à la prochaine lecture de l'almanach"},
    ligne{"frmcoord.cbannee", "Années depuis 2000 ; l'almanach connaît 2000 et 2001"},
    ligne{"frmcoord.txtessai", "Temps sidéral à 0 h en secondes ; vide : almanach non lu"},
    ligne{"frmcoord.opthivers", "Retire une heure à celle de l'ordinateur"},
    ligne{"frmcoord.optété", "Retire deux heures à celle de l'ordinateur"},
    ligne{"frmcoord.txtcoordaz1", "Azimut, degrés"},
    ligne{"frmcoord.txtcoordaz2", "Azimut, minutes d'arc"},
    ligne{"frmcoord.txtcoordaz3", "Azimut, secondes d'arc"},
    ligne{"frmcoord.txtaztos", "Azimut en secondes d'arc"},
    ligne{"frmcoord.txtcoordalt1", "Altitude, degrés"},
    ligne{"frmcoord.txtcoordalt2", "Altitude, minutes d'arc"},
    ligne{"frmcoord.txtcoordalt3", "Altitude, secondes d'arc"},
    ligne{"frmcoord.txtalttos", "Altitude en secondes d'arc"},

    ligne{"frmconfig.txtdegre", "Longitude, degrés ; l'est est positif"},
    ligne{"frmconfig.txtmin", "Longitude, minutes, toujours ajoutées"},
    ligne{"frmconfig.txtlatdeg", "Latitude, degrés ; le nord est positif"},
    ligne{"frmconfig.txtlatmin", "Latitude, minutes, toujours ajoutées"},
    ligne{"frmconfig.txtpasaz", "Pas du moteur d'azimut par tour"},
    ligne{"frmconfig.txtpasalt", "Pas du moteur d'altitude par tour"},
    ligne{"frmconfig.txtRaz", "Tours du moteur pour un tour en azimut"},
    ligne{"frmconfig.txtRalt", "Tours du moteur pour un tour en altitude"},
    ligne{"frmconfig.txtapas", "Secondes d'arc par impulsion en azimut, calculées à l'enregistrement"},
    ligne{"frmconfig.txthpas", "Secondes d'arc par impulsion en altitude, calculées à l'enregistrement"},
    ligne{"frmconfig.txtazplus", "Valeur du port (0 ou 8) qui fait croître l'azimut"},
    ligne{"frmconfig.txtazmoins", "Valeur du port (0 ou 8) qui fait décroître l'azimut"},
    ligne{"frmconfig.txtaltplus", "Valeur du port (0 ou 2) qui fait croître l'altitude"},
    ligne{"frmconfig.txtaltmoins", "Valeur du port (0 ou 2) qui fait décroître l'altitude"},
    ligne{"frmconfig.txtazencoding", "Sans effet : le programme n'a pas d'entrée pour des codeurs"},
    ligne{"frmconfig.txtaltencoding", "Sans effet : le programme n'a pas d'entrée pour des codeurs"},
    ligne{"frmconfig.cmdazencoding", "Remet à zéro le compte de pas en azimut et ouvre la raquette"},
    ligne{"frmconfig.cmdaltencoding", "Remet à zéro le compte de pas en altitude et ouvre la raquette"},
    ligne{"frmconfig.Txtad_h", "Ascension droite de l'objet, heures"},
    ligne{"frmconfig.txtad_min", "Ascension droite de l'objet, minutes"},
    ligne{"frmconfig.txtsign", "Signe de la déclinaison : tout autre texte que + vaut -"},
    ligne{"frmconfig.txtdec_deg", "Déclinaison de l'objet, degrés"},
    ligne{"frmconfig.txtdec_min", "Déclinaison de l'objet, minutes d'arc"},
    ligne{"frmconfig.lbCatalogue", "Catalogues"},
    ligne{"frmconfig.lbObjets", "Objets du catalogue : en choisir un, puis cliquer sur l'étoile"},
    ligne{"frmconfig.cmdchoix", "Prend l'objet choisi dans la liste comme objet observé"},
    ligne{"frmconfig.cmdinitcoord", "Croit le télescope plein sud, à 30° ; prend en compte les sens"},
    ligne{"frmconfig.cmdreinit",
          "Lit l'almanach et croit le télescope sur l'objet observé : c'est l'alignement"},
    ligne{"frmconfig.cmdbacklash", "Ouvre la raquette pour mesurer le jeu"},
    ligne{"frmconfig.cmdvalid", "Enregistre le lieu et la mécanique"},
    ligne{"frmconfig.cmdfermer", "Cache le panneau ; ce qui y est tapé reste"},
    ligne{"frmconfig.cmdaide", "Sans effet"},

    ligne{"frmequaconfig.txtpasad", "Pas du moteur d'ascension droite par tour"},
    ligne{"frmequaconfig.txtpasdec", "Pas du moteur de déclinaison par tour"},
    ligne{"frmequaconfig.txtRad", "Tours du moteur pour un tour en ascension droite"},
    ligne{"frmequaconfig.txtRdec", "Tours du moteur pour un tour en déclinaison"},
    ligne{"frmequaconfig.cmdbacklash", "Ouvre la raquette pour mesurer le jeu"},
    ligne{"frmequaconfig.bFin", "Enregistre et ferme"},

    ligne{"frmaltazpilot.cmdhh", "Altitude, vers le haut jusqu'à l'arrêt"},
    ligne{"frmaltazpilot.cmdhb", "Altitude, vers le bas jusqu'à l'arrêt"},
    ligne{"frmaltazpilot.cmdag", "Azimut, vers la gauche jusqu'à l'arrêt"},
    ligne{"frmaltazpilot.cmdad", "Azimut, vers la droite jusqu'à l'arrêt"},
    ligne{"frmaltazpilot.cmddstop", "Arrêt, dès l'appui (Échap)"},
    ligne{"frmaltazpilot.slaz", "Classe de vitesse en azimut, 1 à 5, même en marche"},
    ligne{"frmaltazpilot.slalt", "Classe de vitesse en altitude, 1 à 5, même en marche"},
    ligne{"frmequapilot.cmdhh", "Déclinaison, vers le haut jusqu'à l'arrêt"},
    ligne{"frmequapilot.cmdhb", "Déclinaison, vers le bas jusqu'à l'arrêt"},
    ligne{"frmequapilot.cmdag", "Ascension droite, vers la gauche jusqu'à l'arrêt"},
    ligne{"frmequapilot.cmdad", "Ascension droite, vers la droite jusqu'à l'arrêt"},
    ligne{"frmequapilot.cmddstop", "Arrêt, dès l'appui (Échap) ; le suivi sidéral n'envoie alors plus rien"},
    ligne{"frmequapilot.slaz", "Classe de vitesse en ascension droite, 1 à 5, même en marche"},
    ligne{"frmequapilot.slalt", "Classe de vitesse en déclinaison, 1 à 5, même en marche"},
    ligne{"frmequapilot.cmdgo", "Met en marche l'entraînement sidéral de l'ascension droite"},
    ligne{"frmequapilot.cmdstopgo", "Arrête l'entraînement sidéral"},
    ligne{"frmequapilot.txtpas", "Pas par seconde, calculés au départ"},
    ligne{"frmequapilot.txtpas1", "Pas envoyés à la dernière seconde"},
    ligne{"frmequapilot.txtessai", "Secondes servies depuis le départ"},
    ligne{"frmequapilot.txts", "Seconde de l'horloge au départ"},

    ligne{"frmraquette.HScrollazl", "Azimut, vitesse lente ; vers la droite : plus vite"},
    ligne{"frmraquette.HScrollazm", "Azimut, vitesse moyenne ; vers la droite : plus vite"},
    ligne{"frmraquette.HScrollazr", "Azimut, vitesse rapide ; vers la droite : plus vite"},
    ligne{"frmraquette.HScrollaltl", "Altitude, vitesse lente ; vers la droite : plus vite"},
    ligne{"frmraquette.HScrollaltm", "Altitude, vitesse moyenne ; vers la droite : plus vite"},
    ligne{"frmraquette.HScrollaltr", "Altitude, vitesse rapide ; vers la droite : plus vite"},
    ligne{"frmraquette.txtaz", "Compte d'attente d'une demi-impulsion en azimut"},
    ligne{"frmraquette.txtalt", "Compte d'attente d'une demi-impulsion en altitude"},
    ligne{"frmraquette.lblbacklash", "Montre ou cache la mesure du jeu"},
    ligne{"frmraquette.cmdjeuaz_deb", "À cliquer avant d'appuyer sur la touche opposée"},
    ligne{"frmraquette.cmdjeuaz_fin", "À cliquer dès que le télescope bouge : pas du dernier appui"},
    ligne{"frmraquette.cmdjeualt_deb", "À cliquer avant d'appuyer sur la touche opposée"},
    ligne{"frmraquette.cmdjeualt_fin", "À cliquer dès que le télescope bouge : pas du dernier appui"},
    ligne{"frmraquette.txtbacklash_az", "Jeu en azimut, en pas"},
    ligne{"frmraquette.txtbacklash_alt", "Jeu en altitude, en pas"},
    ligne{"frmraquette.txtinp", "Sans effet"},

    ligne{"frmaltazsuivi.Txtad_h", "Ascension droite de l'objet suivi, heures"},
    ligne{"frmaltazsuivi.txtad_min", "Ascension droite de l'objet suivi, minutes"},
    ligne{"frmaltazsuivi.txtsign", "Signe de la déclinaison"},
    ligne{"frmaltazsuivi.txtdec_deg", "Déclinaison de l'objet suivi, degrés"},
    ligne{"frmaltazsuivi.txtdec_min", "Déclinaison de l'objet suivi, minutes d'arc"},
    ligne{"frmaltazsuivi.txth2", "Temps sidéral local, heures"},
    ligne{"frmaltazsuivi.txtmin2", "Temps sidéral local, minutes"},
    ligne{"frmaltazsuivi.txts2", "Temps sidéral local, secondes"},
    ligne{"frmaltazsuivi.txtah", "Azimut, degrés"},
    ligne{"frmaltazsuivi.txtamin", "Azimut, minutes d'arc"},
    ligne{"frmaltazsuivi.txthh", "Altitude, degrés"},
    ligne{"frmaltazsuivi.txthmin", "Altitude, minutes d'arc"},
    ligne{"frmaltazsuivi.txtna", "Pas d'azimut envoyés au dernier calcul"},
    ligne{"frmaltazsuivi.txtnh", "Pas d'altitude envoyés au dernier calcul"},
    ligne{"frmaltazsuivi.txtsommea", "Fractions de pas d'azimut en attente"},
    ligne{"frmaltazsuivi.txtsommeh", "Fractions de pas d'altitude en attente"},
    ligne{"frmaltazsuivi.txttempoa", "Compte d'attente des pas d'azimut : plus grand, plus lent"},
    ligne{"frmaltazsuivi.txttempoh", "Compte d'attente des pas d'altitude : plus grand, plus lent"},
    ligne{"frmaltazsuivi.txtincrement", "Période du calcul en millisecondes"},
    ligne{"frmaltazsuivi.updowntaux", "Change la période du calcul"},
    ligne{"frmaltazsuivi.chksuiviaz", "Gardée et enregistrée, sans effet sur le mouvement"},
    ligne{"frmaltazsuivi.chksuivialt", "Gardée et enregistrée, sans effet sur le mouvement"},
    ligne{"frmaltazsuivi.cmdcalcul", "Lance le suivi"},
    ligne{"frmaltazsuivi.cmdraquette", "Pendant une pause : corriger à la raquette"},

    ligne{"frmaltazpointage.lbObjets", "Double clic : pointe l'objet. Clic droit : type et filtre"},
    ligne{"frmequapointage.lbObjets", "Double clic : pointe l'objet. Clic droit : type et filtre"},
    ligne{"frmaltazpointage.lbCatalogue", "Catalogues ; « Autre... » aligne sur des coordonnées tapées"},
    ligne{"frmequapointage.lbCatalogue", "Catalogues ; « Autre... » pointe des coordonnées tapées"},
    ligne{"frmequapointage.lbEtoiles", "Double clic : le télescope est cru sur cette étoile"},
    ligne{"frmaltazpointage.bOK", "Aligne : le télescope est cru sur ces coordonnées, sans bouger"},
    ligne{"frmequapointage.bOK", "Pointe ces coordonnées"},
    ligne{"frmaltazpointage.cmdpointage_graph", "Ouvre la carte du ciel, sans bouger"},
    ligne{"frmequapointage.Picinit", "Ouvre la carte pour dire où pointe le télescope"},
    ligne{"frmequapointage.picpointage", "Ouvre la carte pour y pointer un objet"},
    ligne{"frmaltazpointage.txtcoordaz1", "Azimut de la cible, degrés"},
    ligne{"frmaltazpointage.txtcoordaz2", "Azimut de la cible, minutes d'arc"},
    ligne{"frmaltazpointage.txtcoordaz3", "Azimut de la cible, secondes d'arc"},
    ligne{"frmaltazpointage.txtcoordalt1", "Altitude de la cible, degrés"},
    ligne{"frmaltazpointage.txtcoordalt2", "Altitude de la cible, minutes d'arc"},
    ligne{"frmaltazpointage.txtcoordalt3", "Altitude de la cible, secondes d'arc"},
    ligne{"frmaltazpointage.txtdistaz", "Chemin du pointage en azimut, secondes d'arc"},
    ligne{"frmaltazpointage.txtdistalt", "Chemin du pointage en altitude, secondes d'arc"},

    ligne{"frmDepl.cmstoppointage", "Arrête le pointage, dès l'appui (Échap)"},
    ligne{"frmCercle.Label1", "Montre ou cache la légende"},
    ligne{"frmLegend.bFin", "Ferme la légende"},
    ligne{"frmaide.Label1", "Un clic copie l'adresse"},
    ligne{"frmcopyright.Label1", "Un clic copie l'adresse"},
    ligne{"Frmnotes.Picturesave", "Enregistre le carnet, dès l'appui"},
    ligne{"Frmnotes.txtnotes", "Le carnet ; la disquette l'enregistre"},
    ligne{"Frmnotes.effacer", "Vide le texte à l'écran, pas le fichier"},
};

// The same controls of both panels of a family.
constexpr std::array communes{
    ligne{"txtnumaz", "Classe de vitesse du premier axe"},
    ligne{"txtnumalt", "Classe de vitesse du second axe"},
    ligne{"txtv_az", "Vitesse du premier axe, à la longueur de la barre"},
    ligne{"txtv_alt", "Vitesse du second axe, à la longueur de la barre"},
    ligne{"lblvit", "Montre ou cache l'ajustement des vitesses"},
    ligne{"cbpointaz", "Classe de vitesse du pointage, premier axe"},
    ligne{"cbpointalt", "Classe de vitesse du pointage, second axe"},
    ligne{"tAD(0)", "Ascension droite, heures"},
    ligne{"tAD(1)", "Ascension droite, minutes"},
    ligne{"tDec(0)", "Déclinaison, degrés"},
    ligne{"tDec(1)", "Déclinaison, minutes d'arc"},
    ligne{"optcodeur", "Sans effet : le programme n'a pas d'entrée pour des codeurs"},
    ligne{"optsscodeur", "Sans effet : le programme n'a pas d'entrée pour des codeurs"},
};

template <class Table> std::string_view cherche(const Table& table, std::string_view nom) {
    const auto l = std::find_if(table.begin(), table.end(), [nom](const ligne& x) { return x.nom == nom; });
    return l == table.end() ? std::string_view{} : l->texte;
}

// The number a text begins with, 0 if there is none: this is only shown, so nothing may be fatal here.
double nombre_de(const std::string& t) {
    double x = 0;
    std::from_chars(t.data(), t.data() + t.size(), x);
    return std::isfinite(x) ? x : 0;
}

// A row of the speeds: a bar, or a field of an array of its own name.
bool est_une_vitesse(const shell::controle& c) {
    const auto panneau = c.fiche().nom();
    if (panneau != "frmaltazpilot" && panneau != "frmequapilot")
        return false;
    const auto nom = c.nom_court();
    return c.espece() == shell::genre::barre || nom == "tAZ" || nom == "tAlt" || nom == "tAD" || nom == "tDc";
}

// The number shown is the delay count of half a pulse divided by 50.
std::string vitesse(double nombre_montre) {
    const double compte = std::max(0.0, nombre_montre * 50) + 1;
    const double par_seconde = 1e9 / (2 * compte * static_cast<double>(plateforme::ns_par_compte));
    const auto dixiemes = std::llround(par_seconde * 10);
    std::string s = std::to_string(dixiemes / 10);
    if (dixiemes < 1000)
        s += "," + std::to_string(dixiemes % 10);
    return "Attente : plus grand, plus lent. Ici " + s + " impulsions par seconde au plus";
}

} // namespace

std::string bulle(const shell::controle& c) {
    if (est_une_vitesse(c))
        return vitesse(c.espece() == shell::genre::barre ? c.regarde().valeur : nombre_de(c.regarde().texte));
    const auto panneau = std::string{c.fiche().nom()} + ".";
    for (const auto& nom : {c.nom(), std::string{c.nom_court()}}) {
        if (const auto t = cherche(lignes, panneau + nom); !t.empty())
            return std::string{t};
        if (const auto t = cherche(communes, nom); !t.empty())
            return std::string{t};
    }
    return {};
}

} // namespace bulles
