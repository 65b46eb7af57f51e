// SPDX-License-Identifier: GPL-3.0-or-later
// Plataforma: what the game asks of the machine that cannot be a record: screen, clock, events,
// windows, text, pictures, sound, clipboard, help, folders. The shell has one implementation, the
// tests another with a virtual clock. File numbers of errors are those of core/Errores.h; 0 is
// none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Controles.h"
#include "platform/Superficie.h"
#include "platform/Tipografia.h"

namespace tessario {

class Plataforma : public Tipografia {
public:
    // --- Screen.
    virtual i32 AnchoPantalla() = 0;
    virtual i32 AltoPantalla() = 0;
    // Would the mode be accepted? 0 yes, anything else no.
    virtual i32 PruebaModoPantalla(i32 ancho, i32 alto) = 0;
    // Changes the mode for good: 0 done, 1 after a restart, anything else no.
    virtual i32 CambiaModoPantalla(i32 ancho, i32 alto) = 0;

    // --- Time.
    virtual u32 timeGetTime() = 0;    // milliseconds, wraps
    virtual double Timer() = 0;       // seconds since midnight, with fraction
    virtual std::string Fecha() = 0;  // short date of the system, at most 10 characters
    virtual std::string Hora() = 0;   // short time of the system, at most 8 characters
    // Shows what has been painted, then sleeps; no event passes.
    virtual void Duerme(double milisegundos) = 0;

    // --- Events and painting.
    virtual void DejaPasarEventos() = 0;  // lets pending events run; also shows what was painted
    virtual void Presenta() = 0;          // shows what has been painted and the records' new fields
    virtual i16 BotonesApretados() = 0;   // mouse buttons held right now: sum of their numbers

    // --- Windows. Muestra and MuestraModal call Load first; the modal form returns when the window
    // has been closed. Cierra calls Unload; closing a closed window does nothing.
    virtual void Muestra(Ventana& v) = 0;
    virtual void MuestraModal(Ventana& v) = 0;
    virtual void Cierra(Ventana& v) = 0;
    virtual void Minimiza(Ventana& v) = 0;
    virtual void PonFoco(Control& c) = 0;
    virtual void Termina() = 0;  // ends the program once the running handlers return

    // --- Pictures. Files are told by their content. All that read give 0, 53 no such file, 7 too
    // large, 481 not a picture; unless 0, what they were to fill is left as it was.
    // The kinds that the game's file lists show, and PNG and GIF.
    virtual i32 CargaImagen(const std::string& ruta, Mapa& destino) = 0;
    // Their size in pixels as CargaImagen would give it, from the header alone.
    virtual i32 MideImagen(const std::string& ruta, i32& ancho, i32& alto) = 0;
    // The same picture at exactly ancho x alto, as stretch mode 3 would make it; a large photograph
    // is decoded no finer than that needs, which takes a fraction of the time.
    virtual i32 CargaMuestra(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino) = 0;
    // A picture of any kind that can be read at all, the first one of several.
    virtual i32 CargaAjena(const std::string& ruta, Mapa& destino) = 0;
    virtual i32 GuardaImagen(const std::string& ruta,
                             const Mapa& imagen) = 0;                        // BMP; 0, 61, 75, 76
    virtual bool RecursoImagen(std::string_view nombre, Mapa& destino) = 0;  // in the program

    // --- Sound: resource number; waits for the end unless asynchronous. A new sound cuts the one
    // before. Unknown numbers and a missing device are silent.
    virtual void Suena(i16 id, bool asincrono) = 0;

    // --- Clipboard.
    virtual bool PortapapelesTieneImagen() = 0;
    virtual bool PortapapelesImagen(Mapa& destino) = 0;
    // Files that were copied in a file manager, by their paths.
    virtual std::vector<std::string> PortapapelesFicheros() = 0;

    // --- Help by topic; 0 is the start page.
    virtual void Ayuda(i32 tema) = 0;

    // --- Folders, with a trailing "/".
    virtual std::string CarpetaDelPrograma() = 0;
    virtual std::string CarpetaDelSistema() = 0;  // the user's own data folder
};

// The platform in use. PonSistema comes before anything else of the game.
Plataforma& Sistema();
void PonSistema(Plataforma* p);

}  // namespace tessario
