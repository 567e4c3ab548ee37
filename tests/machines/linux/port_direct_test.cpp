#include "machines/linux/port_direct.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace plateforme;

namespace {

template <int erreur> int refuse(unsigned long, unsigned long, int) {
    errno = erreur;
    return -1;
}

/// A file of a kilobyte that stands for /dev/port: its offsets are the addresses.
class faux_dev_port {
  public:
    faux_dev_port() {
        descripteur_ = mkstemp(chemin_);
        EXPECT_GE(descripteur_, 0);
        EXPECT_EQ(ftruncate(descripteur_, 1024), 0);
    }
    ~faux_dev_port() {
        close(descripteur_);
        unlink(chemin_);
    }
    const char* chemin() const { return chemin_; }
    int octet(int adresse) const {
        unsigned char o = 0;
        EXPECT_EQ(pread(descripteur_, &o, 1, adresse), 1);
        return o;
    }
    void pose(int adresse, int octet) {
        const auto o = static_cast<unsigned char>(octet);
        EXPECT_EQ(pwrite(descripteur_, &o, 1, adresse), 1);
    }

  private:
    char chemin_[40] = "faux_dev_port_XXXXXX";
    int descripteur_ = -1;
};

} // namespace

TEST(Port, AFileTakesAndShowsEachRegisterAtItsPlace) {
    faux_dev_port fichier;
    const auto p = prend_port(refuse<ENOSYS>, fichier.chemin());
    ASSERT_TRUE(p.reel);
    EXPECT_EQ(explication(p), "");
    p.acces->ecrit(888, 0xA5);
    p.acces->ecrit(890, 11);
    for (const auto& [adresse, octet] : {std::pair{887, 0}, {888, 0xA5}, {889, 0}, {890, 11}, {891, 0}})
        EXPECT_EQ(fichier.octet(adresse), octet);
    // Eight lines of 888 and four of 890, as the outside world shows them, whatever was written.
    const struct {
        int adresse, present, lu;
    } cas[] = {{888, 0x00, 0x00}, {888, 0xCB, 0xCB}, {888, 0xFF, 0xFF}, {890, 0x0B, 11},
               {890, 0xEB, 11},   {890, 0xC7, 7},    {890, 0xF0, 0}};
    for (const auto& c : cas) {
        fichier.pose(c.adresse, c.present);
        EXPECT_EQ(p.acces->lit(c.adresse), c.lu) << c.adresse << " montre " << c.present;
    }
    ASSERT_EQ(truncate(fichier.chemin(), 0), 0);
    EXPECT_EQ(p.acces->lit(888), 255) << "a read that fails shows high lines";
    EXPECT_EQ(p.acces->lit(890), 15);
}

TEST(Port, AllRefusedGivesThePortThatIsNotThere) {
    const auto p = prend_port(refuse<EPERM>, "/nulle/part");
    EXPECT_FALSE(p.reel);
    EXPECT_EQ(p.erreur_ioperm, EPERM);
    EXPECT_EQ(p.erreur_dev_port, ENOENT);
    ASSERT_NE(p.acces, nullptr);
    p.acces->ecrit(888, 12);
    p.acces->ecrit(890, 0);
    EXPECT_EQ(p.acces->lit(888), 255);
    EXPECT_EQ(p.acces->lit(890), 255);
    // The remedy names the file that runs, by its whole path.
    EXPECT_NE(explication(p).find("/essais_linux »"), std::string::npos) << explication(p);
}

TEST(Port, ExplanationNamesCallsReasonsCauseAndRemedy) {
    setenv("LC_ALL", "C", 1); // the system's reasons in the language of `strerror` below
    constexpr const char* aucun = "";
    constexpr const char* libre = "[none] integrity confidentiality\n";
    constexpr const char* integrite = "none [integrity] confidentiality\n";
    constexpr const char* droit = "il manque au programme le droit";
    constexpr const char* verrou = "démarrage sécurisé";
    constexpr const char* absent = "n'a pas de tel port";
    const struct {
        int ioperm, dev_port;
        const char *verrouillage, *cause;
        bool setcap, ecrire_dev_port;
    } cas[] = {
        {EPERM, ENOENT, libre, droit, true, false},
        {ENOSYS, EACCES, aucun, droit, true, true},
        {EPERM, EPERM, integrite, verrou, true, false},
        {ENOSYS, ENOENT, aucun, absent, false, false},
        {ENODEV, ENODEV, integrite, absent, false, false},
        {EIO, ENOENT, aucun, "cause inconnue", true, false},
    };
    for (const auto& c : cas) {
        const std::string phrase = explique(c.ioperm, c.dev_port, c.verrouillage, "/opt/velmoria");
        const auto contient = [&](const std::string& t) { return phrase.find(t) != std::string::npos; };
        EXPECT_TRUE(contient("ioperm a échoué (" + std::string{std::strerror(c.ioperm)} + ")")) << phrase;
        EXPECT_TRUE(contient("/dev/port aussi (" + std::string{std::strerror(c.dev_port)} + ")")) << phrase;
        for (const char* cause : {droit, verrou, absent, "cause inconnue"})
            EXPECT_EQ(contient(cause), std::string{cause} == c.cause) << cause << " : " << phrase;
        EXPECT_EQ(contient("« sudo setcap cap_sys_rawio+ep /opt/velmoria »"), c.setcap) << phrase;
        EXPECT_EQ(contient("écrire dans /dev/port"), c.ecrire_dev_port) << phrase;
        EXPECT_EQ(phrase.find('.'), phrase.size() - 1) << "one sentence: " << phrase;
    }
}
