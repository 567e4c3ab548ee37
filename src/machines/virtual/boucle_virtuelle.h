// A machine in which time is a number: nothing sleeps, a night passes in seconds, and twice the same orders
// give twice the same run.
#pragma once

#include "seam/plateforme.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace plateforme {

/// Thrown by the end of the process, through whatever motion is under way.
struct fin_du_processus {
    int statut = 0;
};

/// Thrown when a motion goes on and nothing is left that could end it.
struct mouvement_sans_fin {};

class boucle_virtuelle final : public boucle, public horloge {
  public:
    // boucle
    void attend(std::int64_t ns) override;
    void cede() override;
    void arme(rappel& r, int ms) override;
    void desarme(rappel& r) override;
    [[noreturn]] void termine(int statut) override;

    // horloge
    instant maintenant() override;
    /// Sets the civil clock, which runs on with virtual time.
    void regle_horloge(const instant& civil);

    std::int64_t temps() const { return temps_; } ///< nanoseconds since the start
    /// One port access takes 1 microsecond.
    void acces_port() { temps_ += 1000; }

    /// Runs `f` once, this much later: before the timers due at the same instant, after what was ordered
    /// before it.
    void programme(std::int64_t ns, std::string texte, std::function<void()> f);
    int ordres() const { return ordres_; } ///< how many still wait
    /// When the order that runs now was due; -1 outside one.
    std::int64_t echeance() const { return echeance_; }
    /// Takes back the first order due at this instant whose text begins with `debut`; its text, or none.
    std::string retire(std::int64_t instant, const std::string& debut);
    /// Runs the event loop for this long, what is due at its last instant included.
    void avance(std::int64_t ns);
    /// A motion is measured from here.
    void commence_acte();

  private:
    struct evenement {
        std::int64_t quand;
        int rang; // orders before timers
        std::uint64_t numero;
        plateforme::rappel* rappel;
        std::string texte;
        std::function<void()> f;
        bool operator<(const evenement& b) const {
            return std::tie(quand, rang, numero) < std::tie(b.quand, b.rang, b.numero);
        }
    };
    void lance_premier();

    std::int64_t temps_ = 0;
    std::int64_t civil_ = 0; // milliseconds since 1970 at virtual time 0
    std::int64_t echeance_ = -1;
    std::set<evenement> file_;
    std::uint64_t numeros_ = 0;
    int ordres_ = 0;              // orders still waiting
    std::int64_t debut_acte_ = 0; // when the motion under way could last be ended by something
    std::int64_t cessions_ = 0;   // yields since then
};

} // namespace plateforme
