// SPDX-License-Identifier: GPL-3.0-or-later
// EMF: its walk, and the reader of its records one at a time. Only for Metafichero.
#pragma once

#include "platform/MetaNumeros.h"
#include "platform/MetaRegistro.h"

namespace tessario {

class LectorEmf {
public:
    LectorEmf(ContextoMeta& c, std::size_t objetos) : c_(c), objetos_(objetos) {}
    void Lee(u32 tipo, const Registro& r);  // with its eight bytes of number and length

private:
    using Acciones = AccionesMeta<LectorEmf>;
    using Yo = LectorEmf&;
    using Reg = const Registro&;
    static Acciones::Tabla Estado();
    static Acciones::Tabla Coordenadas();
    static Acciones::Tabla Objetos();
    static Acciones::Tabla Figuras();
    static Acciones::Tabla Poligonos();
    static Acciones::Tabla Caminos();
    static Acciones::Tabla Regiones();
    static Acciones::Tabla Copias();
    static Acciones::Tabla Textos();

    Objeto Busca(u32 n) const;
    void Pon(u32 n, Objeto o);
    void CambiaMundo(const Registro& r);
    Region LeeRegion(const Registro& r, std::size_t i, std::size_t n, const Matriz& m);
    Region RegionLogica(const Registro& r, std::size_t desde);
    void RecortaRegion(const Registro& r);
    void Pluma(const Registro& r);
    void Brocha(const Registro& r);
    void PlumaExtendida(const Registro& r);
    void Fuente(const Registro& r);
    void Paleta(const Registro& r);
    void CambiaPaleta(const Registro& r);
    void VariosPoligonos(const Registro& r, bool cortos, bool cerrados);
    void PoliDibujo(const Registro& r, bool cortos);
    Objeto DibujoDe(const Registro& r, std::size_t i, bool unBit);
    std::optional<Mapa> Bitmap(const Registro& r, std::size_t i, u32 uso, bool conAlfa = false,
                               i32 filas = 0, CabeceraDib* leida = nullptr);
    void Bloque(u32 tipo, const Registro& r);
    void Paralelogramo(const Registro& r);
    void AlDispositivo(const Registro& r);
    void Estirado(const Registro& r);
    void Degradado(const Registro& r);
    void Texto(const Registro& r, std::size_t i, bool ancho);
    void Textos(const Registro& r, bool ancho);
    void TextoBreve(const Registro& r);

    ContextoMeta& c_;
    std::vector<Objeto> objetos_;
};

bool EsEmf(Bytes f);
Lectura MideEmf(Bytes f, i32& ancho, i32& alto);
Lectura PintaEmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo);

}  // namespace tessario
