// SPDX-License-Identifier: GPL-3.0-or-later
// The safety copy: an ordinary saved puzzle of its own name in the player's archive. It is written
// beside everything else and is loaded and deleted by the player like any other; nothing in the
// program reads it. Writing takes the time of putting the record together; the disk is waited for
// elsewhere. A copy that cannot be written is no message: the game itself is not harmed.
#pragma once

#include <string>

namespace tessario {

// CarpetaArchivo + "Copia de seguridad.puz".
std::string FicheroDeCopia();

// A new deal may be about to replace the game. The record of a game with moves in its log, to be
// handed to GuardaCopia if the deal comes; empty for a game without.
std::string RecordParaCopia();
// Writes that record; an empty one is no copy.
void GuardaCopia(const std::string& record);
// Both at once.
void CopiaAntesDeRepartir();

// Once a second: writes a copy every five minutes in which something moved, as soon as nothing is
// in hand and no work is under way.
void CopiaCadaTanto();
// The session ends by a signal: writes what has moved since the last copy, with a piece that is in
// hand where it was taken from and the recorder at its log's end. Returns when it is on the disk.
void CopiaAlTerminar();
// Returns when the copy that is being written is on the disk.
void EsperaCopia();

}  // namespace tessario
