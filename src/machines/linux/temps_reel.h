// Even pulses on a busy machine: while a motion lasts, the thread that moves the motors goes before all
// others, by the kernel's round-robin scheduling at its lowest real-time priority.
#pragma once

#include "machines/linux/attente_precise.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace plateforme {

/// The round-robin scheduling of the thread that builds this. Where the account has a real-time limit
/// (`ulimit -r`) the thread asks for it itself. Where the program has `cap_sys_nice`, a second thread keeps
/// that capability and nothing else, in force for the call alone; no thread started later inherits it.
class tour_de_role {
  public:
    enum class etat {
        un_processeur, ///< never: the motors would take the only one from everything else
        sans_droit,    ///< neither the capability nor the limit, or the kernel refused
        pret,          ///< may be, no motion yet
        en_vigueur,    ///< in force during the last motion, or this one
        trop_court     ///< not in force: the last half-steps were too short to sleep
    };
    /// Half-steps from here on sleep for half of their length or more, whatever margin was learnt. Shorter
    /// ones turn on the spot, and the kernel holds a real-time thread back that takes 95 % of a second.
    static constexpr std::int64_t au_moins = 2 * marge_de_reveil::maximum;

    /// Before `abandonne_droits`, which the second thread needs no more; ends the process with status 1 if
    /// that thread cannot give up its other capabilities.
    tour_de_role();
    ~tour_de_role();
    tour_de_role(const tour_de_role&) = delete;
    tour_de_role& operator=(const tour_de_role&) = delete;

    /// A half-step will wait this long: round-robin from now on, or no longer.
    void avant_attente(std::int64_t ns) {
        attendu_ = bouge_ = true;
        if (permis_ && (ns >= au_moins) != actif_)
            change(ns >= au_moins);
        if (permis_ && !actif_)
            etat_ = etat::trop_court;
    }
    /// A yield has ended; one without a wait before it turns on the spot.
    void cession_finie() {
        if (!attendu_ && etat_ == etat::en_vigueur) {
            if (actif_)
                change(false);
            etat_ = etat::trop_court;
        }
        attendu_ = false;
    }
    /// The event loop has nothing left to do. A motion may go on: a tracking rests between its bursts, and
    /// its next tick must be punctual too. Two seconds without a half-step are its end.
    void repos();

    etat dernier() const { return etat_; }

  private:
    class aide;
    void change(bool actif);

    std::unique_ptr<aide> aide_; ///< the thread that has the right; none if this one may by itself
    bool permis_ = false;
    bool actif_ = false;
    bool attendu_ = false; ///< a wait came since the last yield
    bool bouge_ = false;   ///< a wait came since the last rest
    std::int64_t repos_ = 0;
    etat etat_ = etat::sans_droit;
};

/// For the bench window: whether it is in force, and if not, why.
std::string_view libelle(tour_de_role::etat e);

/// Precise waits under round-robin scheduling: what the programs with windows wait by.
class attente_prioritaire {
  public:
    void attend(std::int64_t ns) {
        tour_.avant_attente(ns);
        attente_.attend(ns);
    }
    void cession_finie() { tour_.cession_finie(); }
    void repos() { tour_.repos(); }
    tour_de_role::etat dernier() const { return tour_.dernier(); }

  private:
    tour_de_role tour_;
    attente_precise attente_;
};

} // namespace plateforme
