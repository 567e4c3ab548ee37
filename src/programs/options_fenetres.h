// The options that every program with windows has.
#pragma once

#include "machines/qt/lance.h"
#include "programs/options.h"

namespace options {

/// They write what they read into `a`, which must outlive the reading.
inline std::vector<option> des_fenetres(plateforme::qt::apparence& a) {
    return {{"--nuit", "", "rouge sur noir dès le départ (F9 change à tout moment)", [&a](std::string_view) {
                 a.nuit = true;
                 return std::string{};
             }},
            {"--positions-initiales", "", "oublie où les fenêtres ont été laissées", [&a](std::string_view) {
                 a.positions_initiales = true;
                 return std::string{};
             }}};
}

} // namespace options
