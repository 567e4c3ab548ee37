#include "machines/linux/port_noyau.h"

#include "machines/linux/port_direct.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace plateforme {

namespace {

class port_noyau final : public port {
  public:
    port_noyau(int descripteur, std::string fichier)
        : descripteur_(descripteur), fichier_(std::move(fichier)) {}
    ~port_noyau() override { close(descripteur_); }
    port_noyau(const port_noyau&) = delete;
    port_noyau& operator=(const port_noyau&) = delete;

    // A port reports nothing to its callers: a write that fails is a write nobody saw.
    void ecrit(int adresse, std::uint8_t valeur) override {
        ioctl(descripteur_, adresse == registre_donnees ? PPWDATA : PPWCONTROL, &valeur);
    }
    std::uint8_t lit(int adresse) override {
        std::uint8_t octet = 255;
        if (ioctl(descripteur_, adresse == registre_donnees ? PPRDATA : PPRCONTROL, &octet) != 0)
            octet = 255;
        return lignes(adresse, octet);
    }
    std::string raquette_invisible() const override {
        return "Les touches de la raquette ne se voient pas par " + fichier_ +
               " : le noyau répond à la place du registre qui les porte. La raquette restera sans effet ; "
               "tout le "
               "reste fonctionne. Pour la voir, donnez au programme le droit au port (aide, page « Droit au "
               "port ») "
               "et, si le démarrage sécurisé (Secure Boot) l'interdit, désactivez celui-ci.";
    }

  private:
    int descripteur_;
    std::string fichier_;
};

} // namespace

prise_noyau prend_port_du_noyau(int numero, const racines& r) {
    prise_noyau p;
    const auto fichier = r.dev / ("parport" + std::to_string(numero));
    const int descripteur = open(fichier.c_str(), O_RDWR | O_CLOEXEC);
    if (descripteur < 0) {
        p.erreur = errno;
        return p;
    }
    p.ouvert = true;
    if (ioctl(descripteur, PPEXCL) != 0 || ioctl(descripteur, PPCLAIM) != 0) {
        p.erreur = errno;
        close(descripteur);
        return p;
    }
    p.acces = std::make_unique<port_noyau>(descripteur, fichier);
    return p;
}

std::vector<std::string> tenants_du_port(int numero, const racines& r) {
    std::vector<std::string> tenants;
    std::error_code erreur;
    const auto dossier = r.proc / "sys/dev/parport" / ("parport" + std::to_string(numero)) / "devices";
    for (std::filesystem::directory_iterator i{dossier, erreur}, fin; !erreur && i != fin;
         i.increment(erreur))
        if (i->is_directory(erreur)) // the file `active` stands beside them
            tenants.push_back(i->path().filename());
    return tenants;
}

} // namespace plateforme
