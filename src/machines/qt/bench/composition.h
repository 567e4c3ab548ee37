// The composition of a program with windows that runs on the bench.
#pragma once

#include "bench/etabli.h"
#include "machines/qt/lance.h"

namespace banc {

/// Port, clock, waits and yields on the bench `e`, whose half-pulses are timed; what else there is to choose
/// is left to the caller. All three must outlive the program; `attente.attend(ns)` returns no earlier than
/// its length after its call, and is told of yields and rest if it wants to be.
template <class Attente>
plateforme::qt::composition sur_le_banc(etabli& e, plateforme::horloge& horloge, Attente& attente) {
    return {.port = e.port(),
            .horloge = horloge,
            .attente =
                [&e, &attente](std::int64_t ns) {
                    e.commence_attente(ns);
                    attente.attend(ns);
                },
            .apres_cession =
                [&e, &attente] {
                    e.cession_finie();
                    static_cast<void>(attente);
                    if constexpr (requires { attente.cession_finie(); })
                        attente.cession_finie();
                },
            .au_repos =
                [&attente] {
                    static_cast<void>(attente);
                    if constexpr (requires { attente.repos(); })
                        attente.repos();
                },
            .icone = "velmoria-banc"};
}

} // namespace banc
