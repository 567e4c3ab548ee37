#include "machines/linux/port_direct.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace plateforme;

namespace {

template <int erreur> int refuse(unsigned long, unsigned long, int) {
    errno = erreur;
    return -1;
}

/// Folders that stand for the kernel's; `dev/port` is a file whose offsets are the addresses.
class faux_noyau {
  public:
    faux_noyau() {
        std::filesystem::create_directories(r.dev);
        std::ofstream{port()} << std::string(0xE000, '\0');
    }
    ~faux_noyau() { std::filesystem::remove_all(dossier_); }
    std::filesystem::path port() const { return r.dev / "port"; }
    void ecrit(const std::filesystem::path& fichier, const char* texte) {
        std::filesystem::create_directories(fichier.parent_path());
        std::ofstream{fichier} << texte;
    }
    void parport(int numero, const char* base) {
        ecrit(r.proc / "sys/dev/parport" / ("parport" + std::to_string(numero)) / "base-addr", base);
    }
    void pci(const char* nom, const char* classe, const char* plages) {
        ecrit(r.sys / "bus/pci/devices" / nom / "class", classe);
        ecrit(r.sys / "bus/pci/devices" / nom / "resource", plages);
    }
    int octet(int adresse) const {
        std::ifstream f{port()};
        return f.seekg(adresse).get();
    }
    void pose(int adresse, int octet) {
        std::fstream f{port()};
        f.seekp(adresse).put(static_cast<char>(octet));
    }

  private:
    std::filesystem::path dossier_ = "faux_noyau." + std::to_string(getpid());

  public:
    racines r{dossier_ / "proc", dossier_ / "sys", dossier_ / "dev", dossier_};
};

} // namespace

TEST(Port, TheBaseIsTheKernelsOrTheWishIfItIsAPorts) {
    faux_noyau n;
    EXPECT_TRUE(ports_connus(n.r).empty());
    n.parport(1, "53264\t0\n"); // 0xd010
    n.ecrit(n.r.proc / "sys/dev/parport/default/timeslice", "200");
    n.pci("0000:03:00.0", "0x070103\n",
          "0x00000000fe500000 0x00000000fe500fff 0x0000000000040200\n" // memory
          "0x000000000000d010 0x000000000000d017 0x0000000000040101\n");
    n.pci("0000:04:00.0", "0x070102\n", "0x000000000000e000 0x000000000000e007 0x0000000000040101\n");
    n.pci("0000:05:00.0", "0x070002\n",
          "0x000000000000f000 0x000000000000f007 0x0000000000040101\n"); // serial
    EXPECT_EQ(ports_connus(n.r), (std::vector<port_connu>{{0xd010, 1}, {0xe000, -1}}));

    using connus = std::vector<port_connu>;
    const struct {
        connus tous;
        const char* voulue;
        int base, numero; // base 0: refused
        const char* dit;
    } cas[] = {
        {{}, "", 888, -1, ""},
        {{{888, 2}}, "", 888, 2, ""},
        {{{0xd010, 0}}, "", 0xd010, 0, "0xd010, la seule"},
        {{{0xd010, 0}, {0x278, 1}}, "", 888, -1, "(0xd010, 0x278) : le programme prend 0x378"},
        {{{0xd010, 0}, {888, 1}}, "", 888, 1, "(0xd010, 0x378) : le programme prend 0x378"},
        {{{0xd010, 0}, {888, 1}}, "0xD010", 0xd010, 0, ""},
        {{{0xd010, 0}}, "632", 0x278, -1, ""},
        {{}, "0x3bc", 0x3bc, -1, ""},
        {{{0xd010, 0}}, "0x3f8", 0, -1, "que le noyau indique (0xd010)"},
        {{}, "53264", 0, -1, "(aucune ici)"},
    };
    for (const auto& c : cas) {
        const auto choix = choisit_port(c.tous, lit_adresse(c.voulue));
        EXPECT_EQ(choix.refus.empty(), c.base != 0) << c.voulue;
        EXPECT_EQ(choix.port, (port_connu{c.base, c.numero})) << c.voulue;
        const auto dit = choix.avis + choix.refus;
        EXPECT_NE(dit.find(c.dit), std::string::npos) << dit;
        EXPECT_EQ(dit.empty(), *c.dit == 0) << dit;
    }
    for (const char* faux : {"", "x", "0x", "378h", "0x10000", "-1", "888 "})
        EXPECT_FALSE(lit_adresse(faux)) << faux;
}

TEST(Port, OneProgramForEachBase) {
    faux_noyau n;
    n.parport(0, "53264\t0\n");
    auto premier = prend_port(refuse<EPERM>, n.r, {});
    ASSERT_TRUE(premier.reel);
    premier.acces->ecrit(890, 11);
    EXPECT_EQ(n.octet(0xd012), 11);
    const auto second = prend_port(refuse<EPERM>, n.r, 0xd010);
    EXPECT_FALSE(second.reel || second.permise());
    EXPECT_NE(explication(second).find("(processus " + std::to_string(getpid())), std::string::npos);
    EXPECT_TRUE(prend_port(refuse<EPERM>, n.r, 888).reel) << "another port is free";
    EXPECT_FALSE(prend_port(refuse<EPERM>, n.r, 0x3f8).permise());
    // A port that no road reached stays free for others.
    std::filesystem::remove(n.port());
    EXPECT_FALSE(prend_port(refuse<EPERM>, n.r, 888).reel);
    EXPECT_TRUE(verrouille(n.r.verrou + "888").pris());
}

TEST(Port, AFileTakesAndShowsEachRegisterAtItsPlace) {
    faux_noyau fichier;
    const auto p = prend_port(refuse<ENOSYS>, fichier.r, {});
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
    ASSERT_EQ(truncate(fichier.port().c_str(), 0), 0);
    EXPECT_EQ(p.acces->lit(888), 255) << "a read that fails shows high lines";
    EXPECT_EQ(p.acces->lit(890), 15);
}

TEST(Port, AllRefusedGivesThePortThatIsNotThere) {
    const auto p = prend_port(refuse<EPERM>, {"/nulle", "/nulle", "/nulle", "velmoria-essai-"}, {});
    EXPECT_FALSE(p.reel);
    EXPECT_TRUE(p.permise());
    EXPECT_EQ(p.refus.ioperm, EPERM);
    EXPECT_EQ(p.refus.dev_port, ENOENT);
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
        refus_des_routes refus;
        int numero;
        const char *verrouillage, *cause, *peripherique;
        bool setcap;
    } cas[] = {
        {{EPERM, ENOENT, 0, false, {}}, -1, libre, droit, "modprobe -a parport_pc ppdev", true},
        {{ENOSYS, EACCES, EACCES, false, {}}, 0, aucun, droit, "adduser $USER lp", true},
        {{EPERM, EPERM, ENOENT, false, {}}, 0, integrite, verrou, "modprobe ppdev", true},
        {{EPERM, EACCES, ENXIO, true, {"lp"}}, 0, integrite, verrou, "modprobe -r lp", true},
        {{EPERM, EACCES, ENXIO, true, {"ppdev0"}}, 0, integrite, verrou, "inscrit comme ppdev0", true},
        {{ENOSYS, ENOENT, 0, false, {}}, -1, aucun, absent, "parport_pc", false},
        {{ENODEV, ENODEV, 0, false, {}}, -1, integrite, absent, "--port", false},
        {{EIO, ENOENT, 0, false, {}}, -1, aucun, "cause inconnue", "", true},
    };
    for (const auto& c : cas) {
        const std::string phrase = explique({0xd010, c.numero}, c.refus, c.verrouillage, "/opt/velmoria");
        const auto contient = [&](const std::string& t) { return phrase.find(t) != std::string::npos; };
        EXPECT_TRUE(contient("0xd010")) << phrase;
        EXPECT_TRUE(contient("ioperm a échoué (" + std::string{std::strerror(c.refus.ioperm)} + ")"))
            << phrase;
        EXPECT_TRUE(contient("/dev/port aussi (" + std::string{std::strerror(c.refus.dev_port)} + ")"))
            << phrase;
        EXPECT_EQ(contient("/dev/parport0 aussi (" + std::string{std::strerror(c.refus.parport)} + ")"),
                  c.refus.parport != 0)
            << phrase;
        for (const char* cause : {droit, verrou, absent, "cause inconnue"})
            EXPECT_EQ(contient(cause), std::string{cause} == c.cause) << cause << " : " << phrase;
        EXPECT_TRUE(contient(c.peripherique)) << phrase;
        EXPECT_EQ(contient("« sudo setcap cap_sys_rawio+ep /opt/velmoria »"), c.setcap) << phrase;
        EXPECT_EQ(phrase.find('.'), phrase.size() - 1) << "one sentence: " << phrase;
    }
}
