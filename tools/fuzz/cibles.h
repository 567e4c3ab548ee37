// The readers of files and texts, each fed with arbitrary bytes.
#pragma once

#include <string_view>
#include <vector>

namespace fuzz {

struct cible {
    std::string_view nom;
    void (*essaie)(
        std::string_view octets); ///< returns, or the process dies: a reader may refuse, never break
};

const std::vector<cible>& cibles();
const cible& cible_nommee(std::string_view nom);

} // namespace fuzz
