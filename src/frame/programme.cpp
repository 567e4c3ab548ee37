#include "frame/programme.h"

#include "chart/etat_carte.h"
#include "chart/frmCercle.h"
#include "chart/frmImage.h"
#include "chart/frmLegend.h"
#include "drive/etat_moteur.h"
#include "drive/position.h"
#include "fields/Frmnotes_champs.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmImage_champs.h"
#include "fields/frmLegend_champs.h"
#include "fields/frmaide_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmaltazpointage_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmcopyright_champs.h"
#include "fields/frmequaconfig_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frmequapointage_champs.h"
#include "fields/frminterface_champs.h"
#include "fields/frmintro_champs.h"
#include "fields/frmraquette_champs.h"
#include "frame/Frmnotes.h"
#include "frame/frmaide.h"
#include "frame/frmcoord.h"
#include "frame/frmcopyright.h"
#include "frame/frminterface.h"
#include "piloting/frmaltazpilot.h"
#include "piloting/frmequapilot.h"
#include "piloting/frmraquette.h"
#include "piloting/jeu.h"
#include "pointing/frmaltazpointage.h"
#include "pointing/frmequapointage.h"
#include "seam/image.h"
#include "settings/frmconfig.h"
#include "settings/frmequaconfig.h"
#include "sky/almanach.h"
#include "sky/conversion.h"
#include "sky/heure.h"
#include "sky/temps_sideral.h"
#include "slewing/etat_pointage.h"
#include "slewing/frmDepl.h"
#include "tracking/etat_suivi.h"
#include "tracking/frmaltazsuivi.h"
#include "tracking/horloge_suivi.h"
#include "tracking/tic_suivi.h"

namespace programme {

namespace {

shell::registre tout;

struct piece {
    shell::panneau& fiche;
    std::vector<shell::controle*> (*controles)();
    void (*branche)(); // none where nothing answers
};

const piece pieces[] = {
    {frminterface::fiche, frminterface::controles, frminterface::branche},
    {frmintro::fiche, frmintro::controles, nullptr},
    {frmcoord::fiche, frmcoord::controles, frmcoord::branche},
    {frmconfig::fiche, frmconfig::controles, frmconfig::branche},
    {frmequaconfig::fiche, frmequaconfig::controles, frmequaconfig::branche},
    {frmaltazpilot::fiche, frmaltazpilot::controles, frmaltazpilot::branche},
    {frmequapilot::fiche, frmequapilot::controles, frmequapilot::branche},
    {frmraquette::fiche, frmraquette::controles, frmraquette::branche},
    {frmaltazpointage::fiche, frmaltazpointage::controles, frmaltazpointage::branche},
    {frmequapointage::fiche, frmequapointage::controles, frmequapointage::branche},
    {frmDepl::fiche, frmDepl::controles, frmDepl::branche},
    {frmCercle::fiche, frmCercle::controles, frmCercle::branche},
    {frmImage::fiche, frmImage::controles, frmImage::branche},
    {frmLegend::fiche, frmLegend::controles, frmLegend::branche},
    {frmaltazsuivi::fiche, frmaltazsuivi::controles, frmaltazsuivi::branche},
    {Frmnotes::fiche, Frmnotes::controles, Frmnotes::branche},
    {frmaide::fiche, frmaide::controles, frmaide::branche},
    {frmcopyright::fiche, frmcopyright::controles, frmcopyright::branche},
};

#define VARIABLE(module, nom) shell::nomme(#nom, module::nom)

std::vector<shell::variable> variables() {
    return {
        VARIABLE(cmd_moteur, cmdsens),
        VARIABLE(cmd_moteur, bitpas),
        VARIABLE(cmd_moteur, bitsens),
        VARIABLE(cmd_moteur, sensplus),
        VARIABLE(cmd_moteur, azplus),
        VARIABLE(cmd_moteur, azmoins),
        VARIABLE(cmd_moteur, altplus),
        VARIABLE(cmd_moteur, altmoins),
        VARIABLE(cmd_moteur, invaz),
        VARIABLE(cmd_moteur, invalt),
        VARIABLE(cmd_moteur, classevitaz),
        VARIABLE(cmd_moteur, classevitalt),
        VARIABLE(cmd_moteur, tempopas),
        VARIABLE(cmd_moteur, tempopaddle),
        VARIABLE(cmd_moteur, vitchange),
        VARIABLE(cmd_moteur, compteaz),
        VARIABLE(cmd_moteur, comptealt),
        VARIABLE(cmd_moteur, codepaddle),
        VARIABLE(cmd_moteur, baselinepaddle),
        VARIABLE(cmd_moteur, slotazl),
        VARIABLE(cmd_moteur, slotazm),
        VARIABLE(cmd_moteur, slotazr),
        VARIABLE(cmd_moteur, slotaltl),
        VARIABLE(cmd_moteur, slotaltm),
        VARIABLE(cmd_moteur, slotaltr),
        VARIABLE(cmd_moteur, jeucourantaz),
        VARIABLE(cmd_moteur, jeucourantalt),
        VARIABLE(cmd_moteur, vitessealtaz),
        VARIABLE(cmd_moteur, vitesseequa),
        VARIABLE(cmd_moteur, vitessemanu),
        VARIABLE(cmd_moteur, nbpasaz),
        VARIABLE(cmd_moteur, nbpasalt),
        VARIABLE(cmd_moteur, tempoaz),
        VARIABLE(cmd_moteur, tempoalt),
        VARIABLE(cmd_moteur, nbpassuivi),
        VARIABLE(general, posaz),
        VARIABLE(general, posalt),
        VARIABLE(general, angpasaz),
        VARIABLE(general, angpasalt),
        VARIABLE(general, ecartaz),
        VARIABLE(general, ecartalt),
        VARIABLE(piloting, backlashaz),
        VARIABLE(piloting, backlashalt),
        VARIABLE(pointing, ciblead),
        VARIABLE(pointing, cibledec),
        VARIABLE(pointing, reticulead),
        VARIABLE(pointing, reticuledec),
        VARIABLE(pointing, reticulevisible),
        VARIABLE(pointing, panneaualtaz),
        VARIABLE(pointing, modepointage),
        VARIABLE(pointing, stoppointage),
        VARIABLE(pointing, ciblehr),
        VARIABLE(pointing, ciblemin),
        VARIABLE(pointing, cibledeg),
        VARIABLE(pointing, cibledegmin),
        VARIABLE(pointing, cibleaz),
        VARIABLE(pointing, ciblealt),
        VARIABLE(pointing, distaz),
        VARIABLE(pointing, distalt),
        VARIABLE(pointing, invpointad),
        VARIABLE(pointing, invpointdec),
        VARIABLE(chart, cercleinit),
        VARIABLE(chart, zoomcercle),
        VARIABLE(chart, rayoncercle),
        VARIABLE(chart, rotcercle),
        VARIABLE(chart, offsetx),
        VARIABLE(chart, offsety),
        VARIABLE(chart, reperevisible),
        VARIABLE(chart, constvisible),
        VARIABLE(chart, filtrecercle),
        VARIABLE(chart, cataloguecercle),
        VARIABLE(chart, lettresgrecques),
        VARIABLE(tracking, suiviouvert),
        VARIABLE(tracking, objetchoisi),
        VARIABLE(tracking, incrementms),
        VARIABLE(tracking, sommeaz),
        VARIABLE(tracking, sommealt),
        VARIABLE(cmd_moteur, pasencodeaz),
        VARIABLE(cmd_moteur, pasencodealt),
        VARIABLE(general, decalageheure),
        VARIABLE(general, chemindate),
        VARIABLE(general, indicejour),
        VARIABLE(general, jouralm),
        VARIABLE(general, heurealm),
        VARIABLE(general, minutealm),
        VARIABLE(general, secondealm),
        VARIABLE(general, tsg0),
        VARIABLE(general, tslsec),
        VARIABLE(general, latrad),
        VARIABLE(general, adrad),
        VARIABLE(general, decrad),
        VARIABLE(general, hautrad),
        VARIABLE(general, hautdeg),
        VARIABLE(general, azbrut),
        VARIABLE(general, azdeg),
        VARIABLE(general, decdeg),
        VARIABLE(general, adheures),
        VARIABLE(frminterface, coordvisible),
    };
}

#undef VARIABLE

} // namespace

void construit() {
    if (tout.variables.empty())
        tout.variables = variables();
    for (const auto& v : tout.variables)
        v.remet();
    plateforme::imagesboutons = {};
    tout.panneaux.clear();
    for (const auto& p : pieces) {
        p.fiche.construit(p.controles());
        tout.panneaux.push_back(&p.fiche);
    }
    for (const auto& p : pieces)
        if (p.branche)
            p.branche();
}

const shell::registre& registre() { return tout; }

void demarre() { frminterface::fiche.montre(); }

} // namespace programme
