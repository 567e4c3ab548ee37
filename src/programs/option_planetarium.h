// The option by which a program listens to planetariums.
#pragma once

#include "machines/qt/lance.h"
#include "programs/options.h"

/// `--planetarium [ADRESSE:]PORT` into `ou`, which must live as long as the option.
options::option option_planetarium(std::optional<plateforme::qt::adresse_du_guichet>& ou);
