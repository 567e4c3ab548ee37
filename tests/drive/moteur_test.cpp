#include "drive/cmd_moteur.h"
#include "drive/position.h"
#include "drive/raquette.h"
#include "essai.h"
#include "fields/frmraquette_champs.h"

using namespace cmd_moteur;

namespace {

// Writes down every access, in order: L888 a read, E888=5 a write.
class port_note final : public plateforme::port {
  public:
    explicit port_note(banc::port_simule& p) : port_(p) {}
    void ecrit(int adresse, std::uint8_t valeur) override {
        journal.append("E")
            .append(std::to_string(adresse))
            .append("=")
            .append(std::to_string(valeur))
            .append(" ");
        port_.ecrit(adresse, valeur);
    }
    std::uint8_t lit(int adresse) override {
        journal.append("L").append(std::to_string(adresse)).append(" ");
        return port_.lit(adresse);
    }
    std::string journal;

  private:
    banc::port_simule& port_;
};

class Raquette : public essais::Essai {};

// The port is read anew before and after each step, the data register first. A motion started during a press
// changes the bits: they act at the next use, and the baseline follows what is driven.
TEST_F(Raquette, APressReadsThePortAndTheBitsAtEachUse) {
    port_note note{port};
    plateforme::courante.port = &note;
    vitessemanu = {833338, 166666, 33334, 833338, 166666, 33334}; // which the bars hold
    frmraquette::fiche.charge();
    slotaltr = 16;
    plateforme::Out32(plateforme::registre_controle, 11);
    ASSERT_TRUE(port.presente(2));
    boucle.programme(1, "", [] {
        bitsens = 8;
        bitpas = 4;
        tempopaddle = 0;
    });
    boucle.programme(17 * 30 + 30, "", [this] { ASSERT_TRUE(port.presente(11)); });
    note.journal.clear();
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 L888 L890 E888=0 E888=12 L888 L890 ");
    EXPECT_EQ(baselinepaddle, 12);
    EXPECT_EQ(boucle.temps(), 17 * 30 + 30);
    note.journal.clear();
    scruteraquette();
    EXPECT_EQ(note.journal, "L888 L890 ") << "no key: nothing is written";
    EXPECT_EQ(jeucourantalt, 1) << "only a press clears it";
}

} // namespace
