// SPDX-License-Identifier: GPL-3.0-or-later
// The machine's clock as the whole process sees it, set to another time. The clock that only ever
// goes on stays as it is.
#pragma once

namespace tessario::reloj {

// Seconds by which the time of day is set off from the true one, from now on.
void Adelanta(long long segundos);
// The time of day is this, in seconds since 1970, from now on.
void Pon(long long segundos);
void Repon();

}  // namespace tessario::reloj
