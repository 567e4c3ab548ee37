#include "frame/aide.h"

#include "seam/plateforme.h"

namespace aide {

namespace {

std::string protege(const std::string& chemin) {
    std::string s;
    for (const char c : chemin)
        s += c == '%' ? "%25" : c == '#' ? "%23" : c == '?' ? "%3F" : std::string{c};
    return s;
}

} // namespace

std::string adresse() {
    const auto page = plateforme::courante.aide / "index.html";
    const auto chemin = protege(page.string());
    return page.is_absolute() ? "file://" + chemin : chemin;
}

} // namespace aide
