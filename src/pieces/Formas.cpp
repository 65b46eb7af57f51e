// SPDX-License-Identifier: GPL-3.0-or-later
#include "pieces/Formas.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i16 CAJA_SIN_LIMITE = 9999;  // left and top before any piece has been seen

// One coordinate of a corner, as a choice among the values that the box (w, h) gives.
enum Cota : u8 {
    CERO,
    W1,    // w - 1
    H1,    // h - 1
    W2,    // w / 2
    H2,    // h / 2
    W_H,   // w - h
    H_W,   // h - w
    W1_2,  // (w - 1) / 2
    H1_2,  // (h - 1) / 2
    W2_1,  // w / 2 - 1
    H2_1   // h / 2 - 1
};

struct Esquina {
    Cota x, y;
};

i16 Valor(Cota c, i32 w, i32 h) {
    const i32 valores[] = {0,     w - 1,       h - 1,       w / 2,     h / 2,    w - h,
                           h - w, (w - 1) / 2, (h - 1) / 2, w / 2 - 1, h / 2 - 1};
    return Corto(valores[c]);
}

// Corners of the triangles by giro 0 to 7.
constexpr Esquina TRIANGULOS[8][3] = {
    {{CERO, H1}, {W2, CERO}, {W1, H1}},   {{CERO, CERO}, {W1, CERO}, {W1, H1}},
    {{CERO, CERO}, {W1, H2}, {CERO, H1}}, {{W1, CERO}, {W1, H1}, {CERO, H1}},
    {{CERO, CERO}, {W2, H1}, {W1, CERO}}, {{CERO, CERO}, {W1, H1}, {CERO, H1}},
    {{W1, CERO}, {CERO, H2}, {W1, H1}},   {{CERO, CERO}, {W1, CERO}, {CERO, H1}}};

// Corners of the square by giro modulo 2.
constexpr Esquina CUADRADOS[2][4] = {{{CERO, CERO}, {W1, CERO}, {W1, H1}, {CERO, H1}},
                                     {{W2, CERO}, {W1, H2}, {W2, H1}, {CERO, H2}}};

// Corners of the parallelogram by volteo and giro modulo 4.
constexpr Esquina PARALELOGRAMOS[2][4][4] = {{{{CERO, CERO}, {W_H, CERO}, {W1, H1}, {H1, H1}},
                                              {{CERO, CERO}, {W1, H1_2}, {W1, H1}, {CERO, H2}},
                                              {{CERO, W1}, {W1, CERO}, {W1, H_W}, {CERO, H1}},
                                              {{W1_2, CERO}, {W1, CERO}, {W2, H1}, {CERO, H1}}},
                                             {{{H1, CERO}, {W1, CERO}, {W_H, H1}, {CERO, H1}},
                                              {{CERO, CERO}, {W2, CERO}, {W1, H1}, {W2_1, H1}},
                                              {{CERO, CERO}, {W1, W1}, {W1, H1}, {CERO, H_W}},
                                              {{W1, CERO}, {W1, H2}, {CERO, H1}, {CERO, H2_1}}}};

// Seed point of the triangles by giro: a share of the side, or the middle rounded up.
constexpr double MITAD = -1;
constexpr double SEMILLA_X[8] = {MITAD, 0.66, 0.38, 0.66, MITAD, 0.33, 0.62, 0.33};
constexpr double SEMILLA_Y[8] = {0.62, 0.33, MITAD, 0.66, 0.38, 0.66, MITAD, 0.33};

i16 Semilla(double parte, i16 lado) {
    return parte == MITAD ? Corto((lado + 1) / 2) : Entero(lado * parte);
}

void PonVertices(i16 piece, const Esquina* esquinas) {
    auto& xs = Gbl.TVerticeX[static_cast<std::size_t>(piece)];
    auto& ys = Gbl.TVerticeY[static_cast<std::size_t>(piece)];
    for (i32 k = 1; k <= FichaDeTangram(piece).Vertices; ++k) {
        xs[k] = Valor(esquinas[k - 1].x, Gbl.AnchoPieza, Gbl.AltoPieza);
        ys[k] = Valor(esquinas[k - 1].y, Gbl.AnchoPieza, Gbl.AltoPieza);
    }
}

void PonCaja(i32 ancho, i32 alto) {
    Gbl.AnchoPieza = Corto(ancho);
    Gbl.AltoPieza = Corto(alto);
}

// The long side of a triangle lies level or upright at the even quarters.
void CajaTriangulo(i16 piece, i16 giro) {
    const i16 diagonal = Gbl.TDiagonal[piece];
    if (giro == 0 || giro == 4) PonCaja(diagonal, diagonal / 2 + 1);
    if (giro == 2 || giro == 6) PonCaja(diagonal / 2 + 1, diagonal);
}

void CajaParalelogramo(i16 giro, i16 volteo) {
    const i16 d = Gbl.TDiagonal[tangram::PARALELOGRAMO];
    if (giro == 2 || giro == 6)
        PonCaja(Gbl.TAlto[tangram::PARALELOGRAMO], Gbl.TAncho[tangram::PARALELOGRAMO]);
    const bool uno = giro == 1 || giro == 5;
    const bool tres = giro == 3 || giro == 7;
    if ((uno && volteo == 0) || (tres && volteo == 1)) PonCaja(d, 2 * d);
    if ((uno && volteo == 1) || (tres && volteo == 0)) PonCaja(2 * d, d);
}

}  // namespace

i16 PiezasDeCelda(i16 forma) {
    return FichaDeForma(forma).PiezasPorCelda;
}

i16 AnchoDePieza(i16 piece, i16 giro, i16 volteo) {
    const auto ancho = JuegoEnCurso().Ancho;
    return ancho ? ancho(piece, giro, volteo) : Gbl.AnchoPieza;
}

i16 AltoDePieza(i16 piece, i16 giro, i16 volteo) {
    const auto alto = JuegoEnCurso().Alto;
    return alto ? alto(piece, giro, volteo) : Gbl.AltoPieza;
}

void TMidePieza(i16 piece, i16 giro, i16 volteo) {
    PonCaja(Gbl.TAncho[piece], Gbl.TAlto[piece]);
    if (EsTriangulo(piece)) {
        CajaTriangulo(piece, giro);
    } else if (piece == tangram::CUADRADO) {
        if (giro % 2 != 0)
            PonCaja(Gbl.TDiagonal[tangram::CUADRADO], Gbl.TDiagonal[tangram::CUADRADO]);
    } else {
        CajaParalelogramo(giro, volteo);
    }
}

void TVertices(i16 piece, i16 giro, i16 volteo) {
    if (piece < 1 || piece > PIEZAS_TANGRAM) throw ErrorEjecucion(ERROR_INDICE);
    if (EsTriangulo(piece)) {
        if (giro >= 0 && giro <= 7) PonVertices(piece, TRIANGULOS[giro]);
    } else if (piece == tangram::CUADRADO) {
        PonVertices(piece, CUADRADOS[giro % 2 != 0]);
    } else if ((volteo == 0 || volteo == 1) && giro >= 0) {
        PonVertices(piece, PARALELOGRAMOS[volteo][giro % 4]);
    }
}

void TPuntoInterior(i16 piece, i16 giro, i16 volteo) {
    const i16 w = AnchoDePieza(piece, giro, volteo);
    const i16 h = AltoDePieza(piece, giro, volteo);
    if (!EsTriangulo(piece)) {
        Gbl.XInterior = Semilla(MITAD, w);
        Gbl.YInterior = Semilla(MITAD, h);
    } else if (giro >= 0 && giro <= 7) {
        Gbl.XInterior = Semilla(SEMILLA_X[giro], w);
        Gbl.YInterior = Semilla(SEMILLA_Y[giro], h);
    }
}

void TCajaFigura(i16 mode) {
    Gbl.CajaIzq = Gbl.CajaArr = CAJA_SIN_LIMITE;
    Gbl.CajaDer = Gbl.CajaAba = 0;
    for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p) {
        const Pieza& z = Gbl.Piezas[p];
        const bool donde = mode == 1;
        const i16 x = donde ? z.X : z.XBien;
        const i16 y = donde ? z.Y : z.YBien;
        TMidePieza(p, donde ? z.Giro : z.GiroBien, donde ? z.Volteo : z.VolteoBien);
        Gbl.CajaIzq = std::min(Gbl.CajaIzq, x);
        Gbl.CajaArr = std::min(Gbl.CajaArr, y);
        Gbl.CajaDer = std::max(Gbl.CajaDer, Corto(x + Gbl.AnchoPieza + 1));
        Gbl.CajaAba = std::max(Gbl.CajaAba, Corto(y + Gbl.AltoPieza + 1));
    }
}

}  // namespace tessario
