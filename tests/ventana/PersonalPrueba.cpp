// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window of the real program, by mouse and keyboard.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "ventana/Escritorio.h"
#include "ventana/Oferta.h"

namespace tessario::ventana {
namespace {

namespace fs = std::filesystem;

constexpr const char *PERSONAL = "Personalizar", *PARAMETROS = "Parámetros del puzzle",
                     *JUEGO = "Lista 'JUEGO ACTUAL'",
                     *SIN_AJUSTES = "Error en la carga de datos iniciales",
                     *NO_VALIDA = "Imagen no válida";
constexpr int BOTON_PERSONALIZAR = 2;

// Points of the window, in its own pixels.
struct Lugar {
    int x, y;
};
constexpr Lugar FICHEROS{155, 104}, FORMA_4{320, 161}, FONDO_ROJO{319, 508};
constexpr Lugar DESLIZANTES{260, 44}, MOVILES{60, 44};
constexpr Lugar FACTOR_0{506, 114}, FACTOR_100{586, 114}, FACTOR_50{545, 114}, PRUEBA{566, 235};
constexpr Lugar DEL_PORTAPAPELES{141, 237};  // the button that takes its picture
constexpr const char* PEGADA = "tsportap.bmp";
constexpr int FILA_FICHERO = 15;  // height of a row of the list

class Ajustes {
public:
    Ajustes(Escritorio& e, Programa& programa) : e_(e), programa_(programa) {}
    bool Abre() {
        programa_.PulsaBoton(BOTON_PERSONALIZAR);
        return Espera();
    }
    bool Espera() {
        if (!e_.Espera([&] { return e_.BuscaVentana(PERSONAL, marco_); })) return false;
        e_.EsperaQuieto();
        return true;
    }
    void Pulsa(const Lugar& p) { e_.Pulsa(marco_.x + p.x, marco_.y + p.y); }
    void PulsaFichero(int fila) { Pulsa({FICHEROS.x, FICHEROS.y + fila * FILA_FICHERO}); }
    void PulsaSalir() { Pulsa({612, marco_.alto - 41}); }
    bool Cerrada() {
        return e_.Espera([&] { return !e_.HayVentana(PERSONAL); });
    }
    // Leaves with yes to a new puzzle.
    bool Reempieza() {
        PulsaSalir();
        const bool cerrada = e_.Responde(PARAMETROS, true) && Cerrada();
        e_.EsperaQuieto();
        return cerrada;
    }
    const Escritorio::Marco& Marco() const { return marco_; }

private:
    Escritorio& e_;
    Programa& programa_;
    Escritorio::Marco marco_;
};

PartidaGuardada Rompecabezas(Programa& programa) {
    PartidaGuardada p = DeCuadros(480, 360, 4);
    p.imagen = "aa.bmp";
    p.borde = true;
    for (PiezaGuardada& q : p.piezas) {
        q.x += 60;
        q.y += 100;
    }
    programa.EscribeImagenDeCuadros(p.imagen, p.anchoImagen, p.altoImagen, p.porLado);
    return p;
}

// Pixels of the screen that are near a colour.
int Cerca(const Foto& f, unsigned color) {
    constexpr int MARGEN = 6;
    int n = 0;
    for (const unsigned p : f.pixeles) {
        bool cerca = true;
        for (const int canal : {0, 8, 16})
            cerca = cerca && std::abs(static_cast<int>(p >> canal & 255U) -
                                      static_cast<int>(color >> canal & 255U)) <= MARGEN;
        n += cerca;
    }
    return n;
}

// A colour that pictures of squares have with 3 or more a side, and not with 2.
unsigned ColorNuevo() {
    return Programa::ColorDeCuadro(6);
}

// A jigsaw in play whose picture has no ColorNuevo.
PartidaGuardada SinColorNuevo(Programa& programa) {
    PartidaGuardada p = Rompecabezas(programa);
    programa.EscribeImagenDeCuadros(p.imagen, p.anchoImagen, p.altoImagen, 2);
    return p;
}

TEST(PersonalVentana, AMetafileAndAPhotographBecomePuzzles) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    fs::copy_file(std::string(TESSARIO_DATOS) + "metaficheros/w_paisaje-1.wmf",
                  programa.Carpeta() + "Imagenes/ab.WMF");
    const std::string bmp = programa.Carpeta() + "cuadros.bmp";
    programa.EscribeBytes("cuadros.bmp", Programa::ImagenDeCuadros(640, 480, 3));
    const std::string orden = "convert '" + bmp + "' -quality 95 -sampling-factor 1x1 '" +
                              programa.Carpeta() + "Imagenes/ac.jpg'";
    ASSERT_EQ(std::system(orden.c_str()), 0);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    const struct {
        int fila;
        unsigned color;
        const char* foto;
    } casos[] = {{1, 0x5A96DC, "personal-metafichero"}, {2, ColorNuevo(), "personal-jpeg"}};
    for (const auto& c : casos) {
        EXPECT_EQ(Cerca(e.Mira(), c.color), 0) << c.foto;
        ASSERT_TRUE(ajustes.Abre()) << c.foto;
        ajustes.PulsaFichero(c.fila);
        e.EsperaQuieto();
        EXPECT_GT(Cerca(e.Mira(), c.color), 50) << c.foto;  // in the preview
        ASSERT_TRUE(ajustes.Reempieza()) << c.foto;
        const Foto mesa = e.Mira();
        mesa.Guarda(c.foto);
        EXPECT_GT(Cerca(mesa, c.color), 2000) << c.foto;
    }
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida p = programa.LeePartida(21);
    EXPECT_EQ(p.imagen, "ac.jpg");
    EXPECT_EQ(p.piezas.size(), 25U);
    EXPECT_TRUE(p.archivable);
}

// The clipboard's picture, brought by `pega`, which leaves the window open, becomes a puzzle.
void PegaYReempieza(const char* foto, const std::function<bool(Escritorio&, Ajustes&)>& pega) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    ASSERT_TRUE(programa.Arranca());
    EXPECT_EQ(Cerca(e.Mira(), ColorNuevo()), 0);
    Ajustes ajustes(e, programa);
    const Oferta oferta(e, "image/bmp", Programa::ImagenDeCuadros(400, 300, 3));
    ASSERT_TRUE(pega(e, ajustes));
    e.EsperaQuieto();
    e.Mira().Guarda(foto);
    ASSERT_TRUE(ajustes.Reempieza());
    EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 1000);
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(21).imagen, PEGADA);
    EXPECT_TRUE(fs::exists(programa.Carpeta() + "Imagenes/" + PEGADA));
}

TEST(PersonalVentana, APicturePastedOnTheTableOpensTheWindowWithIt) {
    PegaYReempieza("personal-pegada-mesa", [](Escritorio& e, Ajustes& ajustes) {
        e.TeclaConControl("v");
        return ajustes.Espera();
    });
}

TEST(PersonalVentana, APictureIsPastedInTheWindow) {
    PegaYReempieza("personal-pegada", [](Escritorio& e, Ajustes& ajustes) {
        const bool abierta = ajustes.Abre();
        e.TeclaConControl("v");
        return abierta;
    });
}

TEST(PersonalVentana, TheButtonTakesTheClipboardsPicture) {
    PegaYReempieza("personal-boton-portapapeles", [](Escritorio& e, Ajustes& ajustes) {
        // The button's place in the window; its last columns are edge and tile, without letters.
        constexpr int X = 56, Y = 227, ANCHO = 171, ALTO = 23, FINAL = 4;
        const bool abierta = ajustes.Abre();
        const Foto f = e.Mira();
        const int x = ajustes.Marco().x + X + ANCHO - FINAL, y = ajustes.Marco().y + Y;
        for (int j = y; j < y + ALTO; ++j) EXPECT_EQ(f.En(x, j), f.En(x + 1, j)) << j;
        ajustes.Pulsa(DEL_PORTAPAPELES);
        return abierta;
    });
}

TEST(PersonalVentana, ASecondPasteAsksAndNoLeavesTheFormerPicture) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    PartidaGuardada p = SinColorNuevo(programa);
    programa.EscribeImagenDeCuadros(PEGADA, p.anchoImagen, p.altoImagen, 2);
    p.imagen = PEGADA;
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    const Oferta oferta(e, "image/bmp", Programa::ImagenDeCuadros(400, 300, 3));
    const std::string fichero = programa.Carpeta() + "Imagenes/" + PEGADA;
    const auto bytes = fs::file_size(fichero);
    ASSERT_TRUE(ajustes.Abre());
    e.TeclaConControl("v");
    e.EsperaQuieto();
    EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 1000);
    EXPECT_NE(fs::file_size(fichero), bytes);
    ajustes.PulsaSalir();
    ASSERT_TRUE(e.Responde(PARAMETROS, false));
    ASSERT_TRUE(ajustes.Cerrada());
    e.EsperaQuieto();
    EXPECT_EQ(Cerca(e.Mira(), ColorNuevo()), 0);
    EXPECT_EQ(fs::file_size(fichero), bytes);
    ASSERT_TRUE(programa.Sale());
    ASSERT_TRUE(programa.Arranca());
    EXPECT_EQ(Cerca(e.Mira(), ColorNuevo()), 0);
    EXPECT_EQ(programa.LeePartida(21).piezas.size(), 16U);
}

// A picture of another kind in a folder of another program, by a name that has to be written round.
std::string FotoAjena(Programa& programa, int n) {
    const std::string carpeta = programa.Carpeta() + "Mis imágenes/";
    fs::create_directories(carpeta);
    programa.EscribeBytes("cuadros.bmp", Programa::ImagenDeCuadros(640, 480, n));
    const std::string foto = carpeta + "Una señal.png";
    const std::string orden = "convert '" + programa.Carpeta() + "cuadros.bmp' '" + foto + "'";
    EXPECT_EQ(std::system(orden.c_str()), 0);
    return foto;
}

TEST(PersonalVentana, AFileDroppedOnTheTableOpensTheWindowWithIt) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    const std::string foto = FotoAjena(programa, 3);
    ASSERT_TRUE(programa.Arranca());
    EXPECT_EQ(Cerca(e.Mira(), ColorNuevo()), 0);
    const Acogida acogida = SueltaFichero(e, 300, 400, foto);
    EXPECT_TRUE(acogida.recogida);
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Espera());
    e.Mira().Guarda("personal-soltada-mesa");
    EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 1000);  // in the preview
    ASSERT_TRUE(ajustes.Reempieza());
    EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 2000);
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(21).imagen, "Una señal.bmp");
    std::ifstream copia(programa.Carpeta() + "Imagenes/Una señal.bmp", std::ios::binary);
    EXPECT_EQ(std::string({char(copia.get()), char(copia.get())}), "BM");
}

TEST(PersonalVentana, AFileDroppedOnTheWindowIsChosenAndTheTableBelowTakesNone) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    const std::string foto = FotoAjena(programa, 3);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    const Escritorio::Marco& m = ajustes.Marco();
    const Acogida debajo = SueltaFichero(e, m.x / 2, m.y + 40, foto);
    EXPECT_TRUE(debajo.hayDestino);
    EXPECT_FALSE(debajo.admitida);
    e.EsperaQuieto();
    EXPECT_EQ(Cerca(e.Mira(), ColorNuevo()), 0);
    EXPECT_TRUE(SueltaFichero(e, m.x + m.ancho / 2, m.y + m.alto / 2, foto).recogida);
    e.EsperaQuieto();
    e.Mira().Guarda("personal-soltada");
    EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 1000);
    ASSERT_TRUE(ajustes.Reempieza());
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(21).imagen, "Una señal.bmp");
}

TEST(PersonalVentana, ADroppedFileThatIsNoPictureIsToldAndChangesNothing) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    programa.EscribeBytes("carta.txt", "Querida abuela:\n");
    const std::string carta = programa.Carpeta() + "carta.txt";
    ASSERT_TRUE(programa.Arranca());
    EXPECT_TRUE(SueltaFichero(e, 300, 400, carta).recogida);
    ASSERT_TRUE(e.Responde(NO_VALIDA, false));
    e.EsperaQuieto();
    EXPECT_FALSE(e.HayVentana(PERSONAL));
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    const Foto antes = e.Mira();
    const Escritorio::Marco& m = ajustes.Marco();
    EXPECT_TRUE(SueltaFichero(e, m.x + m.ancho / 2, m.y + m.alto / 2, carta).recogida);
    ASSERT_TRUE(e.Responde(NO_VALIDA, false));
    e.EsperaQuieto();
    EXPECT_EQ(e.Mira().Diferencia(antes, m.x, m.y, m.ancho, m.alto - 100), 0);
    ajustes.PulsaSalir();
    ASSERT_TRUE(ajustes.Cerrada());  // without a question
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(21).imagen, "aa.bmp");
}

TEST(PersonalVentana, TheButtonFollowsWhatIsCopiedWhileTheWindowIsOpen) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(SinColorNuevo(programa));
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    const Foto sin = e.Mira();
    const auto cambiados = [&] {
        constexpr int MEDIO_ANCHO = 85, MEDIO_ALTO = 11;
        return e.Mira().Diferencia(sin, ajustes.Marco().x + DEL_PORTAPAPELES.x - MEDIO_ANCHO,
                                   ajustes.Marco().y + DEL_PORTAPAPELES.y - MEDIO_ALTO,
                                   2 * MEDIO_ANCHO, 2 * MEDIO_ALTO);
    };
    {
        const Oferta oferta(e, "image/bmp", Programa::ImagenDeCuadros(400, 300, 3));
        ASSERT_TRUE(e.Espera([&] { return cambiados() > 1000; })) << "it comes";
        ajustes.Pulsa(DEL_PORTAPAPELES);
        e.EsperaQuieto();
        EXPECT_GT(Cerca(e.Mira(), ColorNuevo()), 1000);
    }
    const Oferta texto(e, "UTF8_STRING", "Querida abuela:");
    EXPECT_TRUE(e.Espera([&] { return cambiados() == 0; })) << "and goes";
}

TEST(PersonalVentana, AFirstStartEndsInAGameWithThePictureChosenByMouse) {
    Escritorio e(800, 600);
    Programa programa(e);
    programa.QuitaAjustes();
    programa.EscribeImagenDeCuadros("AA.bmp", 480, 360, 3);
    programa.EscribeImagenDeCuadros("AB.bmp", 400, 300, 3);
    programa.EscribeGlobal(21, 100);
    programa.Lanzalo();
    ASSERT_TRUE(e.Responde(SIN_AJUSTES, false));
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Espera());
    ajustes.PulsaFichero(1);
    e.EsperaQuieto();
    e.Mira().Guarda("personal-primer-inicio");
    ajustes.PulsaSalir();
    ASSERT_TRUE(ajustes.Cerrada());
    ASSERT_TRUE(programa.LlegaALaMesa());
    e.Mira().Guarda("personal-primera-mesa");
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida p = programa.LeePartida(21);
    EXPECT_EQ(p.imagen, "AB.bmp");
    EXPECT_EQ(p.piezas.size(), 25U);
    EXPECT_TRUE(p.archivable);
}

TEST(PersonalVentana, ChangesAreTakenBackByCancelAndCarriedOutByAccept) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(Rompecabezas(programa));
    programa.EscribeImagenDeCuadros("ab.bmp", 640, 480, 4);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    for (const bool si : {false, true}) {
        ASSERT_TRUE(ajustes.Abre()) << si;
        ajustes.PulsaFichero(1);
        ajustes.Pulsa(FORMA_4);
        e.EsperaQuieto();
        ajustes.PulsaSalir();
        ASSERT_TRUE(e.Responde(PARAMETROS, si)) << si;
        ASSERT_TRUE(ajustes.Cerrada()) << si;
        e.EsperaQuieto();
        if (!si) {
            e.Mira().Guarda("personal-cancelado");
        }
    }
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida p = programa.LeePartida(21);
    EXPECT_EQ(p.imagen, "ab.bmp");
    EXPECT_EQ(p.piezas.size() % 2, 0U);  // two pieces a cell
    EXPECT_NE(p.piezas.size(), 16U);
    EXPECT_FALSE(fs::exists(programa.Carpeta() + "Archivo/TESSA33.CSE"));
}

TEST(PersonalVentana, ACancelledRestartLeavesTheGameInPlay) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.EscribeGlobal(21, 100);
    const PartidaGuardada antes = Rompecabezas(programa);
    programa.EscribePartida(antes);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    ajustes.Pulsa(FORMA_4);
    ajustes.Pulsa(FONDO_ROJO);
    ajustes.PulsaSalir();
    ASSERT_TRUE(e.Responde(PARAMETROS, false));
    ASSERT_TRUE(ajustes.Cerrada());
    e.EsperaQuieto();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida p = programa.LeePartida(21);
    ASSERT_EQ(p.piezas.size(), 16U);
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_EQ(p.piezas[i].x, antes.piezas[i].x);
        EXPECT_EQ(p.piezas[i].y, antes.piezas[i].y);
    }
}

TEST(PersonalVentana, AGameLeftInPlayIsThereAgain) {
    Escritorio e(1024, 768);
    Programa programa(e);
    programa.QuitaAjustes();
    programa.EscribeGlobal(21, 100);
    const PartidaGuardada antes = Rompecabezas(programa);
    programa.EscribePartida(antes);
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    ajustes.Pulsa(DESLIZANTES);
    ASSERT_TRUE(e.Responde(JUEGO, true));
    ASSERT_TRUE(e.Responde(SIN_AJUSTES, false));
    ASSERT_TRUE(ajustes.Cerrada());
    e.EsperaQuieto();
    ASSERT_TRUE(ajustes.Abre());
    e.Mira().Guarda("personal-deslizantes");
    ajustes.Pulsa(MOVILES);
    ASSERT_TRUE(e.Responde(JUEGO, true));
    ASSERT_TRUE(ajustes.Cerrada());
    e.EsperaQuieto();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida p = programa.LeePartida(21);
    ASSERT_EQ(p.piezas.size(), 16U);
    EXPECT_EQ(p.piezas[5].x, antes.piezas[5].x);
    EXPECT_EQ(programa.LeePartida(22).piezas.size(), 24U);
}

TEST(PersonalVentana, TheAttractionTestEndsWithThePieceInItsHole) {
    Escritorio e(800, 600);
    Programa programa(e);
    programa.EscribeGlobal(21, 90);
    programa.EscribePartida(Rompecabezas(programa));
    ASSERT_TRUE(programa.Arranca());
    Ajustes ajustes(e, programa);
    ASSERT_TRUE(ajustes.Abre());
    const Foto antes = e.Mira();
    // The hole, in the upper right corner of the small table.
    const int x = ajustes.Marco().x + 494 + 8 + 96, y = ajustes.Marco().y + 76 + 65 + 6;
    EXPECT_EQ(antes.Cuenta(x, y, 26, 20, 0xC0C0C0), 26 * 20);
    for (const Lugar& factor : {FACTOR_0, FACTOR_50, FACTOR_100}) {
        ajustes.Pulsa(factor);
        ajustes.Pulsa(PRUEBA);
        ASSERT_TRUE(e.Espera([&] { return e.Mira().Cuenta(x, y, 26, 20, 0xC0C0C0) == 0; }));
        e.EsperaQuieto();
        EXPECT_EQ(e.Mira().Cuenta(x, y, 26, 20, 0xC0C0C0), 0);
    }
    ajustes.PulsaSalir();
    ASSERT_TRUE(ajustes.Cerrada());
    EXPECT_TRUE(programa.Sale());
}

}  // namespace
}  // namespace tessario::ventana
