// SPDX-License-Identifier: GPL-3.0-or-later
// EMF: its walk, and the reader of its records one at a time. Only for Metafichero.
#pragma once

#include "platform/MetaRegistro.h"

namespace tessario {

class LectorEmf {
public:
    LectorEmf(ContextoMeta& c, std::size_t objetos) : c_(c), objetos_(objetos) {}
    void Lee(u32 tipo, const Registro& r);

private:
    bool Estado(u32 tipo, const Registro& r);
    bool Coordenadas(u32 tipo, const Registro& r);
    bool Objetos(u32 tipo, const Registro& r);
    bool Figuras(u32 tipo, const Registro& r);
    bool Poligonos(u32 tipo, const Registro& r);
    bool Caminos(u32 tipo, const Registro& r);
    bool Regiones(u32 tipo, const Registro& r);
    bool Copias(u32 tipo, const Registro& r);
    bool Textos(u32 tipo, const Registro& r);

    Objeto Busca(u32 n) const;
    void Pon(u32 n, Objeto o);
    Region LeeRegion(const Registro& r, std::size_t i, std::size_t n, const Matriz& m);
    void Pluma(const Registro& r);
    void PlumaExtendida(const Registro& r);
    void Fuente(const Registro& r);
    void Paleta(const Registro& r);
    void CambiaPaleta(const Registro& r);
    Objeto DibujoDe(const Registro& r, std::size_t i, bool unBit);
    std::optional<Mapa> Bitmap(const Registro& r, std::size_t i, u32 uso, bool conAlfa = false,
                               i32 filas = 0, CabeceraDib* leida = nullptr);
    void Bloque(u32 tipo, const Registro& r);
    void Paralelogramo(const Registro& r);
    void AlDispositivo(const Registro& r);
    void Estirado(const Registro& r);
    void Degradado(const Registro& r);
    void Texto(const Registro& r, std::size_t i, bool ancho);
    void TextoBreve(const Registro& r);

    ContextoMeta& c_;
    std::vector<Objeto> objetos_;
};

bool EsEmf(Bytes f);
Lectura MideEmf(Bytes f, i32& ancho, i32& alto);
Lectura PintaEmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo);

}  // namespace tessario
