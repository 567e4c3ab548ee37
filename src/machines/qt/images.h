// The pictures: those loaded from the data folder, and those built into the program.
#pragma once

#include "seam/image.h"

#include <QIcon>
#include <QPixmap>
#include <filesystem>

namespace plateforme::qt {

/// Loads a GIF or JPEG picture, one too large for Qt with fewer pixels than the size given back tells; the
/// same path loaded again replaces the picture it gave before. A missing
/// file is fatal (`fichier introuvable`), and so is one that is neither (`image illisible`).
image charge(const std::filesystem::path& chemin);

/// The pixels of a loaded picture; none for number 0.
QPixmap pixels_de(const image& i);

/// An icon of the toolbars by its index; none if there is no such icon.
QIcon icone(int indice);

/// The face of a button, and a full-size picture for a screen of that density, by their design names.
QIcon face(const char* nom);
QPixmap decor(const char* nom, double densite);

/// The icon of a program's windows.
QIcon icone_programme(const char* nom);

} // namespace plateforme::qt
