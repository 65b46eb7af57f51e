// SPDX-License-Identifier: GPL-3.0-or-later
// What the measurements of the real program share: what the system knows of a process, and a line
// of the table.
#pragma once

#include <sys/types.h>

namespace tessario::ventana {

// User and system time of a process so far, in seconds.
double Procesador(pid_t pid);
// Resident memory in megabytes.
double Memoria(pid_t pid);
// Seconds that a plain copy of so many bytes takes, the median of several.
double Copia(double bytes);
// Prints a value, how many plain copies it is (0: not told), and whether it keeps its bound.
bool Linea(const char* nombre, const char* unidad, double valor, double limite, double copias = 0);

// The start, to a laid table of common size.
bool MideArranque();
// The large table: 3840 x 2160.
bool MideGrande();
// The safety copy at the end of a session, by either signal.
bool MideFin();
// A laid table that nobody touches, the clock running.
bool MideOcio();

}  // namespace tessario::ventana
