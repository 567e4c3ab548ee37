// The size of a picture from the first bytes of its file: every machine takes it from here, so that a
// photograph has the same measures on all.
#pragma once

#include "seam/image.h"

#include <optional>
#include <string_view>

namespace plateforme {

/// Size in pixels and density of a GIF or JPEG file; none if it is neither, or cut short. 96 pixels to the
/// inch where the file tells no density.
std::optional<image> lit_entete(std::string_view octets);

} // namespace plateforme
