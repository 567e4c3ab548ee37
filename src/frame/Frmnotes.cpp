#include "frame/Frmnotes.h"

#include "base/valeurs.h"
#include "fields/Frmnotes_champs.h"
#include "seam/image.h"
#include "seam/plateforme.h"

namespace Frmnotes {

using plateforme::imagesboutons;

namespace {

const char* const fichier = "notes.txt";
constexpr std::size_t repos = 0;
constexpr std::size_t appui = 1;

// Notes that begin with an empty line show as empty, whatever follows it.
void charge() {
    valeurs::lecteur f{plateforme::fichier_donnees(fichier)};
    auto texte = f.ligne();
    if (!texte.empty())
        while (!f.fini())
            texte += "\r\n" + f.ligne();
    txtnotes.ecrit(texte);
    Picturesave.image(imagesboutons[repos]);
}

// The text and one line end, which the next load drops again.
void enregistre() {
    Picturesave.image(imagesboutons[appui]);
    valeurs::ecrivain f;
    f.texte(txtnotes.lit());
    f.enregistre(plateforme::fichier_donnees(fichier));
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    Picturesave.a_l_appui(enregistre);
    Picturesave.au_relachement([] { Picturesave.image(imagesboutons[repos]); });
    effacer.au_clic([] { txtnotes.ecrit(""); });
    cmdnotesquit.au_clic([] { fiche.decharge(); });
}

} // namespace Frmnotes
