// SPDX-License-Identifier: GPL-3.0-or-later
// The view for a control's record.
#pragma once

#include "qt/Vista.h"

namespace tessario {

// The view that suits the record's kind.
Vista* CreaVista(Control& c, MarcoDeVistas& v, QWidget* padre);

}  // namespace tessario
