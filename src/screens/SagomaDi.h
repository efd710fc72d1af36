#pragma once

#include "screens/DisegnoSezione.h"

namespace sagomi {

class SezioneDoppioT;

/// The picture of a section: its outline, as computed last, and what its dimensions are called.
SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione);

} // namespace sagomi
