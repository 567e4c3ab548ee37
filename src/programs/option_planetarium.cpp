#include "programs/option_planetarium.h"

#include <charconv>

namespace {

// An address of the sixth version stands in brackets: its colons are its own.
std::string lit(std::string_view texte, plateforme::qt::adresse_du_guichet& ou) {
    const auto deux_points = texte.rfind(':');
    if (deux_points != std::string_view::npos) {
        auto adresse = texte.substr(0, deux_points);
        if (adresse.starts_with('[') && adresse.ends_with(']'))
            adresse = adresse.substr(1, adresse.size() - 2);
        if (adresse.empty())
            return "il manque l'adresse avant les deux-points";
        ou.adresse = adresse;
        texte.remove_prefix(deux_points + 1);
    }
    const auto* fin = texte.data() + texte.size();
    const auto lu = std::from_chars(texte.data(), fin, ou.port);
    if (lu.ec != std::errc{} || lu.ptr != fin || ou.port < 1 || ou.port > 65535)
        return "un port de 1 à 65535 était attendu : \"" + std::string{texte} + "\"";
    return {};
}

} // namespace

options::option option_planetarium(std::optional<plateforme::qt::adresse_du_guichet>& ou) {
    return {"--planetarium", "[ADRESSE:]PORT",
            "écoute un planétarium (LX200 sur TCP) ; sans adresse, cet ordinateur seul",
            [&ou](std::string_view texte) { return lit(texte, ou.emplace()); }};
}
