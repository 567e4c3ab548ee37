// Screenshots of every window, for the README, the help pages and whoever changes a panel:
// velmoria-captures DATA FOLDER. Plays on the bench, with a private copy of the data.
#include "chart/etat_carte.h"
#include "chart/frmImage.h"
#include "drive/etat_moteur.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmImage_champs.h"
#include "fields/frmLegend_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frmequapointage_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/lance.h"
#include "machines/qt/mesures.h"
#include "machines/qt/nuit.h"
#include "machines/qt/vue_qt.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

namespace fs = std::filesystem;

namespace {

class photographe {
  public:
    photographe(QWidget* principale, fs::path dossier)
        : principale_(principale), dossier_(std::move(dossier)) {}

    void prend(QWidget* w, const std::string& nom) const {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        const auto chemin = dossier_ / (nom + ".png");
        if (!w->grab().save(QString::fromStdString(chemin.string())))
            std::fprintf(stderr, "%s: not written\n", chemin.c_str());
    }
    void prend_panneau(const shell::panneau& p, const std::string& nom) const {
        for (auto* f : principale_->findChildren<QMdiSubWindow*>())
            if (f->objectName() == plateforme::qt::affiche(p.nom()))
                prend(f, nom);
    }
    // The MDI windows side by side, so that none hides another.
    void place(const shell::panneau& p, int x, int y) const {
        for (auto* f : principale_->findChildren<QMdiSubWindow*>())
            if (f->objectName() == plateforme::qt::affiche(p.nom()))
                f->move(x, y);
    }

  private:
    QWidget* principale_;
    fs::path dossier_;
};

void chaque_panneau(const photographe& photo) {
    for (auto* p : programme::registre().panneaux) {
        if (p->options().principal || p->options().sans_bord)
            continue;
        p->montre();
        photo.prend_panneau(*p, std::string{p->nom()});
        p->decharge();
    }
    frmaltazpilot::fiche.montre();
    frmaltazpilot::pied.lblvit.clic();
    photo.prend_panneau(frmaltazpilot::fiche, "frmaltazpilot-ouvert");
    frmaltazpilot::fiche.decharge();
    frmequapilot::fiche.montre();
    frmequapilot::pied.lblvit.clic();
    photo.prend_panneau(frmequapilot::fiche, "frmequapilot-ouvert");
    frmequapilot::fiche.decharge();
}

// The whole sky, then the winter sky from afar and from near.
void carte(const photographe& photo) {
    frmequapointage::fiche.montre();
    frmequapointage::lbEtoiles.double_clic(frmequapointage::lbEtoiles.position());
    frmequapointage::Picinit.clic();
    frmequapointage::fiche.decharge();
    pointing::reticulevisible = true;
    frmCercle::mnuTous.clic();
    photo.prend_panneau(frmCercle::fiche, "carte-1");
    for (const int zoom : {3, 5}) {
        frmCercle::entree_zoom(zoom).clic();
        chart::offsetx = -500 * zoom;
        chart::offsety = -4000 * zoom;
        frmCercle::ciel.frappe({32});
        photo.prend_panneau(frmCercle::fiche, "carte-" + std::to_string(zoom));
    }
    frmCercle::Label1.clic();
    photo.prend_panneau(frmLegend::fiche, "carte-legende");
    frmCercle::mnuRaz.clic();
    frmImage::montre("M45");
    photo.prend_panneau(frmImage::fiche, "carte-photographie");
    for (auto* p : {&frmImage::fiche, &frmLegend::fiche, &frmCercle::fiche})
        p->decharge();
}

void en_mouvement(const photographe& photo, QWidget* principale, banc::fenetre_banc& banc) {
    frminterface::barchoix_boutons(2).clic();
    photo.prend(principale, "altazimutal");
    frminterface::baraltaz_boutons(3).clic();
    photo.place(frmaltazpilot::fiche, 30, 210);
    // The lateness shown is the jog's own, not that of the pictures taken so far.
    QTimer::singleShot(1000, [&] { banc.findChild<QPushButton*>("oublie_retard")->click(); });
    QTimer::singleShot(2500, [&] {
        banc.rafraichit();
        photo.prend(&banc, "banc");
        photo.prend(principale, "pilotage");
        plateforme::qt::met_la_nuit(true);
        photo.prend(principale, "nuit");
        plateforme::qt::met_la_nuit(false);
        frmaltazpilot::deplacement.cmddstop.clic();
    });
    frmaltazpilot::deplacement.cmdag.clic();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: velmoria-captures DATA FOLDER\n");
        return 2;
    }
    const fs::path dossier{argv[2]};
    fs::create_directories(dossier);
    const auto donnees = dossier / "data-privee";
    fs::remove_all(donnees);
    fs::copy(argv[1], donnees, fs::copy_options::recursive);

    banc::horloge_banc horloge{plateforme::temps_systeme(), [] { return 2; }};
    horloge.regle({2000, 8, 15, 22, 30, 12, 0});
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = donnees;
    plateforme::qt::seance seance{argc, argv, std::move(composition)};
    // What the help and about panels show must not tell on which machine the pictures were made.
    plateforme::courante.aide = "/home/observateur/velmoria/aide";
    seance.demarre();
    banc::fenetre_banc banc{etabli, horloge, [] { return std::string_view{"non, inutile au repos"}; }};
    banc.findChild<QLineEdit*>("chemin_vcd")->setText("/home/observateur/velmoria.vcd");
    banc.show();
    const photographe photo{seance.vue().principale(), dossier};
    photo.prend(seance.vue().principale(), "demarrage");
    chaque_panneau(photo);
    carte(photo);
    en_mouvement(photo, seance.vue().principale(), banc);
    fs::remove_all(donnees);
    return 0;
}
