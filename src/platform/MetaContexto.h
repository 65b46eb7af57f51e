// SPDX-License-Identifier: GPL-3.0-or-later
// The state that a metafile's records change and draw with: coordinates, objects, clip, path, and
// the figures in logical coordinates, turned into what a painter takes. No record is read here.
#pragma once

#include <optional>
#include <span>

#include "platform/MetaNumeros.h"
#include "platform/PintorMetafichero.h"

namespace tessario {

// A colour as records give it: red in the lowest byte; an upper byte of 1 makes it an index.
struct ColorMeta {
    u32 Valor = 0;
};

// What a handle of a metafile names.
struct ObjetoMeta {
    enum class Clase { Otro, Pluma, Brocha, Fuente, Paleta, Region };
    Clase Tipo = Clase::Otro;
    // Brush, and what a wide pen is filled with.
    BrochaMeta Brocha;
    ColorMeta Tinta;
    // Pen.
    u32 Estilo = 0;
    double Ancho = 0;  // logical
    std::vector<u32> Trazos;
    bool Extendida = false;
    FuenteMeta Fuente;  // heights and widths logical
    std::vector<Pixel> Paleta;
    Region Rgn;
};
using Objeto = std::shared_ptr<ObjetoMeta>;

Objeto BrochaLisa(u32 color);
Objeto BrochaDeClase(u32 clase, u32 color, i32 trama);  // `trama`: of a hatched one
Objeto PlumaLisa(u32 estilo, double ancho, u32 color);
Objeto DeExistencias(u32 numero);  // the ready-made objects by number; null: none of that number

struct EstadoMeta {
    int Modo = MM_TEXT;  // of mapping
    PuntoD VentanaOrigen, VistaOrigen;
    PuntoD VentanaMedida{1, 1}, VistaMedida{1, 1};
    Matriz Mundo;
    bool Opaco = true;
    int Rop2 = MODO_COPIA;
    bool Alterno = true;
    int Estira = 1;
    unsigned Alineacion = 0;
    ColorMeta Texto{0}, Fondo{0xFFFFFF};
    double ExtraLetra = 0, ExtraBlancos = 0;
    i32 Blancos = 0;
    PuntoD Pluma;  // current position, logical
    Punto OrigenBrocha;
    bool ContraReloj = true;
    double Inglete = 10;
    Objeto ObjPluma, ObjBrocha, ObjFuente, ObjPaleta;
    std::shared_ptr<const Region> Recorte, RecorteMeta;  // null: all

    // Modes as records number them; what is none of them changes nothing or is the usual one.
    void PonFondo(u32 modo) { Opaco = modo != 1; }
    void PonRelleno(u32 modo) { Alterno = modo != 2; }
    void PonMezcla(u32 modo) {
        if (modo >= 1 && modo <= 16) Rop2 = static_cast<int>(modo);
    }
    void PonEstiramiento(u32 modo) { Estira = static_cast<int>(modo & 7U); }
};

class ContextoMeta {
public:
    // `base` leads from the pixels of the device for which the file was made to the picture's.
    ContextoMeta(PintorMetafichero& pintor, Esfuerzo& esfuerzo, i32 ancho, i32 alto,
                 const Matriz& base, PuntoD pixelesPorMm);

    EstadoMeta E;
    // Deliberate: the two kinds of files do not draw alike. In an EMF a box without a pen holds its
    // right column and lower row, pens that stay inside boxes do not, and what a pen draws with a
    // mode meets the filling below it.
    bool ReglasEmf = false;
    void Guarda();
    void Restaura(i32 nivel);  // below 0 relative, above 0 absolute
    Esfuerzo& Gasto() { return esfuerzo_; }

    // --- Coordinates.
    void PonMapeo(int modo);
    void PonMedida(bool vista, PuntoD m);
    void EscalaMedida(bool vista, PuntoD por, PuntoD entre);
    Matriz AlPapel() const;        // from logical to the device's pixels
    Matriz AlDispositivo() const;  // from logical to the picture's pixels
    const Matriz& Base() const { return base_; }
    PuntoD Redondo(PuntoD logico) const;
    void Elige(const Objeto& o);

    // --- Lines and figures.
    void MueveA(PuntoD p);
    void LineaA(PuntoD p);
    void Polilinea(std::span<const PuntoD> p, bool sigue);  // sigue: from the current position
    void Bezier(std::span<const PuntoD> p, bool sigue);
    void PoliDibujo(std::span<const PuntoD> p, std::span<const u8> clase);
    void Poligonos(const std::vector<std::vector<PuntoD>>& p, bool cerrados);
    void Rectangulo(PuntoD a, PuntoD b);
    void Redondeado(PuntoD a, PuntoD b, PuntoD esquina);
    void Elipse(PuntoD a, PuntoD b);
    enum class Arco { Suelto, Sigue, Tarta, Cuerda };
    void DibujaArco(Arco clase, PuntoD a, PuntoD b, PuntoD desde, PuntoD hasta);
    void ArcoAngulo(PuntoD centro, double radio, double desde, double barrido);
    void PonPunto(PuntoD p, ColorMeta c);
    void Inunda(PuntoD p, ColorMeta c, bool hastaBorde);

    // --- Path.
    void EmpiezaCamino();
    void TerminaCamino() { enCamino_ = false; }
    void CierraFigura();
    void AbandonaCamino();
    void PintaCamino(bool rellena, bool traza);
    void EnsanchaCamino();
    void RecortaConCamino(int modo);

    // --- Clip and regions. Rectangles in logical coordinates.
    void RecortaCaja(PuntoD a, PuntoD b, int modo);
    void RecortaRegion(const Region& r, int modo);  // device pixels of the picture
    void QuitaRecorte() { E.Recorte.reset(); }
    void DesplazaRecorte(PuntoD d);
    void FijaMetaRegion();
    Region RegionDe(std::span<const PuntoD> esquinas, const Matriz& m);  // pairs of corners
    void RellenaRegion(const Region& r, const Objeto& brocha);
    void InvierteRegion(const Region& r);
    void MarcoRegion(const Region& r, const Objeto& brocha, PuntoD grosor);

    // --- Pictures and text.
    void Copia(CopiaMeta c, PuntoD lugar, PuntoD medida);
    void CopiaA(CopiaMeta c);  // corners already in the picture's pixels
    void Degrada(const PuntoD (&p)[3], const Pixel (&color)[3]);
    struct Escrito {
        std::u16string Letras;
        PuntoD Lugar;
        std::vector<PuntoD> Avances;  // logical
        unsigned Opciones = 0;
        PuntoD CajaA, CajaB;
    };
    void Escribe(const Escrito& t);

    Pixel Color(ColorMeta c) const;
    void PonPaleta(const Objeto& o);
    void CambiaMedida(ObjetoMeta& paleta, std::size_t colores);

private:
    struct CajaFigura {
        PuntoD Centro, EjeX, EjeY;
        PuntoD De(double x, double y) const {
            return {Centro.x + EjeX.x * x + EjeY.x * y, Centro.y + EjeX.y * x + EjeY.y * y};
        }
    };
    std::optional<CajaFigura> Caja(PuntoD a, PuntoD b, bool girada = false) const;
    void Arquea(const CajaFigura& c, double desde, double hasta, std::vector<PuntoD>& p);
    Contorno& FiguraAbierta();
    void Anade(Trazado t);
    void Pinta(Trazado t, bool rellena);
    void Figura(const Trazado& t, bool alterno, bool rellena, bool traza);
    void Curva(PuntoD a, PuntoD b, PuntoD c, PuntoD d, std::vector<PuntoD>& p);
    void Cuenta(std::size_t puntos);         // their work, and that they are not too many
    static void Limita(std::size_t puntos);  // the latter alone
    ModosMeta Modos();
    const Region* RecorteVivo();
    BrochaMeta BrochaDe(const ObjetoMeta& o) const;
    PlumaMeta PlumaViva() const;
    void PagaCopia(const Region& r);
    void CombinaRecorte(const Region& r, int modo);

    PintorMetafichero& pintor_;
    Esfuerzo& esfuerzo_;
    Rect limites_;
    Matriz base_;
    PuntoD pixelesPorMm_;
    std::vector<EstadoMeta> pila_;
    Trazado camino_;
    bool enCamino_ = false, figuraAbierta_ = false;
    bool ensanchado_ = false;  // the path is a pen's figure, to be filled by winding
    std::size_t puntosCamino_ = 0;
    Region vivo_;
    Rect cajaViva_;
    const Region *visto_ = nullptr, *vistoMeta_ = nullptr;
    bool vivoAlDia_ = false;
};

}  // namespace tessario
