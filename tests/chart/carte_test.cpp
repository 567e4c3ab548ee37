#include "chart/astres_carte.h"
#include "chart/etat_carte.h"
#include "chart/frmImage.h"
#include "chart/redessine.h"
#include "chart/vue_carte.h"
#include "essai.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmImage_champs.h"

namespace {

using base::cause;
using chart::espece;
using essais::attend_echec;

class carte : public essais::Essai {
  protected:
    // So many records at a place far from all others.
    void remplit(const std::string& nom, std::size_t n, const char* reste) const {
        std::string t;
        for (std::size_t i = 0; i < n; ++i)
            t.append("A").append(std::to_string(i)).append(reste).append("\r\n");
        fichier(nom, t);
    }

    void pose(std::size_t i, chart::astre_carte a, bool etoile) {
        (etoile ? chart::astres.etoiles[i] : chart::astres.objets[i]) = std::move(a);
    }
};

TEST_F(carte, places_remarquables) {
    const struct {
        int zoom, rotation;
        double ad, dec, x, y;
    } cas[] = {
        {1, 0, 0, 54000, 4500, 4500}, {7, 0, 0, 54000, 4500, 4500},  {1, 0, 0, 0, 9000, 4500},
        {1, 0, 3600, 0, 4500, 9000},  {1, 90, 3600, 0, 0, 4500},     {1, 0, 0, -5400, 9450, 4500},
        {2, 0, 0, 27000, 9000, 4500}, {1, -90, 3600, 0, 9000, 4500}, {1, 0, 20, 0, 8999, 4539},
    };
    chart::initialise_vue();
    for (const auto& c : cas) {
        chart::raz_vue();
        chart::zoome(c.zoom);
        chart::tourne(c.rotation);
        const auto p = chart::projette(c.ad, c.dec);
        EXPECT_EQ(p.x, c.x) << c.ad << " " << c.dec << " " << c.rotation;
        EXPECT_EQ(p.y, c.y) << c.ad << " " << c.dec << " " << c.rotation;
    }
    attend_echec(cause::depassement, [] { chart::projette(0, 1e308); });
}

TEST_F(carte, pris_dans_un_carre) {
    chart::libere_astres();
    pose(0, {"A", "", 0, 0, 1000, 1000}, true);
    pose(1, {"B", "", 0, 0, 5010, 5050}, true);
    pose(2, {"C", "", 0, 0, 5020, 5005}, true);
    pose(3, {"D", "", 0, 0, 7000, 7050}, true);
    pose(4, {"E", "", 0, 0, 7010, 7010}, true);
    pose(5, {"F", "", 0, 0, 7009, 7009}, true);
    pose(0, {"O", "", 0, 0, 1090, 1000}, false);
    pose(1, {"P", "", 0, 0, 3000, 3000}, false);
    pose(3, {"Q", "", 0, 0, 8000, 8000}, false); // behind a free entry
    const struct {
        float x, y;
        espece quoi;
        int indice;
    } cas[] = {
        {1000, 1099, espece::etoile, 0}, {1000, 1100, espece::aucune, -1}, {901, 1000, espece::etoile, 0},
        {900, 1000, espece::aucune, -1}, {1090, 1000, espece::etoile, 0},  {1100, 1000, espece::objet, 0},
        {5000, 5000, espece::etoile, 1}, // the second is nearer, but not on both axes
        {7000, 7000, espece::etoile, 3}, // nor are the third and fourth
        {7020, 7020, espece::etoile, 4}, {3099, 2901, espece::objet, 1},   {8000, 8000, espece::aucune, -1},
    };
    for (const auto& c : cas) {
        const auto p = chart::procheobjet(c.x, c.y);
        EXPECT_EQ(static_cast<int>(p.quoi), static_cast<int>(c.quoi)) << c.x << " " << c.y;
        EXPECT_EQ(p.indice, c.indice) << c.x << " " << c.y;
    }
}

TEST_F(carte, limites_des_tables) {
    fichier("vconst.cat", "");
    fichier("messier.cat", "");
    const auto cherche = [] { chart::procheobjet(1, 1); };
    remplit("vstar.cat", 199, ",Ori,0,54000");
    frmCercle::fiche.charge();
    cherche();
    remplit("vstar.cat", 200, ",Ori,0,54000");
    chart::redessine();
    attend_echec(cause::indice, cherche);
    remplit("vstar.cat", 201, ",Ori,0,54000");
    chart::redessine();
    remplit("vstar.cat", 202, ",Ori,0,54000");
    EXPECT_NE(attend_echec(cause::indice, chart::redessine).find("vstar.cat"), std::string::npos);

    fichier("vstar.cat", "");
    frmCercle::fiche.decharge();
    remplit("messier.cat", 1099, ",GL,0,54000");
    frmCercle::fiche.charge();
    cherche();
    remplit("messier.cat", 1101, ",GL,0,54000");
    chart::redessine();
    attend_echec(cause::indice, cherche);
    remplit("messier.cat", 1102, ",GL,0,54000");
    EXPECT_NE(attend_echec(cause::indice, chart::redessine).find("messier.cat"), std::string::npos);
    fichier("messier.cat", "A,GL,0");
    attend_echec(cause::fin_de_fichier, chart::redessine);
    fichier("vconst.cat", "0,-1");
    EXPECT_NE(attend_echec(cause::indice, chart::redessine).find("vconst.cat"), std::string::npos);
}

TEST_F(carte, taille_des_photographies) {
    const struct {
        plateforme::image image;
        int largeur, hauteur; // twips
    } cas[] = {
        {{1, 640, 480, 96}, 9600, 7200},
        {{2, 300, 200, 300}, 1440, 960},
        {{3, 1200, 2400, 100}, 17280, 34560}, // its height has no limit
        {{4, 32767, 10, 2540}, 18577, 6},
    };
    for (const auto& c : cas) {
        vue.photo = c.image;
        frmImage::montre("M31");
        EXPECT_EQ(frmImage::oPicture.largeur(), c.largeur);
        EXPECT_EQ(frmImage::oPicture.hauteur(), c.hauteur);
        EXPECT_EQ(frmImage::fiche.largeur(), c.largeur + 200);
        EXPECT_EQ(frmImage::fiche.hauteur(), c.hauteur + 500);
        EXPECT_EQ(frmImage::bFin.regarde_place().x, c.largeur + 300);
        EXPECT_EQ(frmImage::fiche.legende(), "M31");
    }
    vue.photo = {5, 32768, 10, 2540};
    EXPECT_NE(attend_echec(cause::depassement, [] { frmImage::montre("M31"); }).find("M31.jpg"),
              std::string::npos);
}

} // namespace
