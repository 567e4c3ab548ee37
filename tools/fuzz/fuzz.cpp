// One target as libFuzzer calls it.
#include "cibles.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto& cible = fuzz::cible_nommee(VELMORIA_CIBLE);
    cible.essaie({reinterpret_cast<const char*>(octets), taille});
    return 0;
}
