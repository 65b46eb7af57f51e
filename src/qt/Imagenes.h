// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures from files, from the program's resources and from other programs, as plain bitmaps.
#pragma once

#include <QByteArray>
#include <QImage>
#include <string>
#include <string_view>

#include "platform/Superficie.h"

namespace tessario::imagenes {

// 0, 53 no such file, 75 no access, 7 too large, 481 not a picture; unless 0, what was to be filled
// is left as it was. Files are told by their content.
i32 Carga(const std::string& ruta, Mapa& destino);  // the kinds of the game's file lists, PNG, GIF
i32 Mide(const std::string& ruta, i32& ancho, i32& alto);  // their size, from the header alone
// At exactly this size, by stretch mode 3; photographs are decoded no finer than that needs.
i32 CargaReducida(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino);
i32 CargaAjena(const std::string& ruta, Mapa& destino);  // any kind, the first picture of several
i32 DeMemoria(const QByteArray& bytes, Mapa& destino);   // what a file of any kind would hold
// A 24-bit BMP, replaced whole or not at all: 0, 61 disk full, 75 no access, 76 no such folder.
i32 Guarda(const std::string& ruta, const Mapa& imagen);
bool Recurso(std::string_view nombre, Mapa& destino);
// Any image as 0x00RRGGBB; what is see-through shows white.
Mapa Convierte(QImage imagen);

}  // namespace tessario::imagenes
