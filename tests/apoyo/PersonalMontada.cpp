// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/PersonalMontada.h"

#include <filesystem>

#include "records/Modelos.h"
#include "rules/Despacho.h"
#include "session/Dificultad.h"
#include "settings/Personal.h"
#include "table/Ordenes.h"

namespace tessario {

using namespace personal;

void PersonalMontada::SetUp() {
    MesaMontada::SetUp();
    ConectaPersonal();
    VentanasOrdenes.Personal = &Personal;
    std::filesystem::create_directories(P().carpeta + "Archivo");
    std::filesystem::create_directories(P().carpeta + "Imagenes");
}

void PersonalMontada::MovilesDe(const std::string& nombre, i32 ancho, i32 alto, i16 lado,
                                i16 forma) {
    Gbl.RutaImagen = PonImagen(nombre, ancho, alto);
    Gbl.FicheroImagen = nombre;
    Gbl.CarpetaImagen = Gbl.CarpetaImagenes;
    Gbl.ImagenValida = true;
    Moviles(lado, ancho, alto, forma);
    CalculaDificultad();
}

void PersonalMontada::TangramDe(const std::vector<std::string>& modelos, i16 modo) {
    Tangram(modo);
    i32 n = 0;
    for (const std::string& nombre : modelos) {
        for (i16 i = 1; i <= 7; ++i) {
            Gbl.Piezas[i].X = static_cast<i16>(20 + 70 * (i - 1) + 5 * n);
            Gbl.Piezas[i].Y = static_cast<i16>(20 + 30 * n);
            Gbl.Piezas[i].Giro = static_cast<i16>(n % 8);
        }
        GuardaModelo(nombre);
        ++n;
    }
    Gbl.ModeloActual = 1;
    Gbl.ImagenValida = true;
    if (modo == MODO_RESOLVER && n > 0) LeeModelo();
    PreparaJuego(true);
    P().sonidos.clear();
}

void PersonalMontada::Visita(const std::function<void()>& visita) {
    P().ventanas["Personal"] = [visita](Ventana&) { visita(); };
    PulsaOrden(2);
}

void PersonalMontada::Sal(std::initializer_list<bool> respuestas) {
    for (const bool r : respuestas) P().respuestas.push_back(r);
    Pulsa(Pic_BotSalir);
}

void PersonalMontada::Pulsa(Control& c) {
    const Punto o = PunteroPrueba::Origen(c);
    Raton.Pulsa(o.x + c.Width() / 2, o.y + c.Height() / 2);
}

void PersonalMontada::EligeFichero(const std::string& nombre) {
    for (i32 i = 0; i < File1.ListCount(); ++i)
        if (File1.Elementos[static_cast<std::size_t>(i)].Texto == nombre) {
            File1.Selecciona(i);
            return;
        }
    ADD_FAILURE() << nombre << " is not listed";
}

std::string PersonalMontada::FicheroElegido() {
    if (File1.ListIndex < 0) return {};
    return File1.Elementos[static_cast<std::size_t>(File1.ListIndex)].Texto;
}

}  // namespace tessario
