// SPDX-License-Identifier: GPL-3.0-or-later
// The shell in hostile surroundings: what stands in the place of a picture, a picture that is
// replaced while it is read, names that are no text, another time of day, another language, a sound
// device that hangs.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMimeData>
#include <QUrl>
#include <atomic>
#include <chrono>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <thread>

#include "PruebaQt.h"
#include "RelojCambiado.h"
#include "qt/Sonidos.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;

class Entorno : public PruebaQt {
protected:
    Entorno() { EXPECT_NE(mkdtemp(carpeta_.data()), nullptr); }
    ~Entorno() override {
        reloj::Repon();
        fs::remove_all(carpeta_);
    }
    std::string Ruta(const std::string& nombre) { return carpeta_ + "/" + nombre; }
    std::string Crea(const std::string& nombre, const std::string& bytes) {
        std::ofstream(Ruta(nombre), std::ios::binary) << bytes;
        return Ruta(nombre);
    }
    static std::string En(int w, int h, QRgb color, const char* formato) {
        QImage im(w, h, QImage::Format_RGB32);
        im.fill(color);
        QByteArray b;
        QBuffer m(&b);
        m.open(QIODevice::WriteOnly);
        im.save(&m, formato);
        return b.toStdString();
    }
    // Every way of reading a picture; each must fail by one of these numbers and leave what it was
    // to fill.
    void NoSeLee(const std::string& ruta, std::initializer_list<i32> numeros) {
        Mapa m(2, 2, 0x123456);
        i32 w = -1, h = -1;
        for (const i32 error : {P().CargaImagen(ruta, m), P().CargaAjena(ruta, m),
                                P().CargaMuestra(ruta, 20, 15, m), P().MideImagen(ruta, w, h)})
            EXPECT_NE(std::find(numeros.begin(), numeros.end(), error), numeros.end())
                << ruta << ": " << error;
        EXPECT_EQ(m.Pixeles, std::vector<Pixel>(4, 0x123456)) << ruta;
        EXPECT_EQ(w, -1) << ruta;
    }

private:
    // Not the library's, which takes no name away that is no text.
    std::string carpeta_ = (fs::temp_directory_path() / "tessario-entorno-XXXXXX").string();
};

// ---------------------------------------------------------------- in the place of a picture

TEST_F(Entorno, WhatIsNoFileIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(Ruta("tubo.bmp").c_str(), 0600), 0);
    fs::create_directory(Ruta("carpeta.bmp"));
    fs::create_symlink(Ruta("b.bmp"), Ruta("a.bmp"));
    fs::create_symlink(Ruta("a.bmp"), Ruta("b.bmp"));
    fs::create_symlink(Ruta("tubo.bmp"), Ruta("enlace.jpg"));
    for (const char* nombre : {"tubo.bmp", "carpeta.bmp", "a.bmp", "enlace.jpg", "no hay.bmp"})
        NoSeLee(Ruta(nombre), {53});
    NoSeLee("/dev/zero", {53});
    NoSeLee(std::string(5000, 'x'), {53});
}

TEST_F(Entorno, FourGigabytesAreNotRead) {
    constexpr std::uintmax_t TAMANO = 4ULL << 30U;
    constexpr long MAS_KB = 300 * 1024;
    rusage antes{}, despues{};
    getrusage(RUSAGE_SELF, &antes);
    for (const char* formato : {"", "BMP", "JPG", "PNG", "PPM"}) {
        const std::string nombre = std::string("gigante") + formato;
        Crea(nombre, *formato ? En(8, 8, 0x336699, formato) : "");
        fs::resize_file(Ruta(nombre), TAMANO);
        NoSeLee(Ruta(nombre), {7, 481});
    }
    for (const char* cabeza :
         {"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>",
          "RIFF\x20\x20\x20\x20WEBPVP8L", "\xD7\xCD\xC6\x9A", "GIF89a\x08", "II*\x00\x08"}) {
        Crea("gigante", cabeza);
        fs::resize_file(Ruta("gigante"), TAMANO);
        NoSeLee(Ruta("gigante"), {7, 481});
    }
    getrusage(RUSAGE_SELF, &despues);
    EXPECT_LT(despues.ru_maxrss - antes.ru_maxrss, MAS_KB);
}

// ---------------------------------------------------------------- replaced while it is read

TEST_F(Entorno, APictureReplacedWhileItIsReadIsOneOrTheOtherOrNone) {
    const struct {
        int w, h;
        QRgb color;
    } DOS[] = {{640, 480, 0xFFC02040}, {320, 700, 0xFF2040C0}};
    constexpr int VECES = 150, LEIDAS = 20, VECES_MAXIMAS = 200000;
    const std::string ruta = Ruta("foto");
    for (const char* formato : {"BMP", "PNG", "JPG"}) {
        std::string bytes[2];
        for (int i = 0; i < 2; ++i) bytes[i] = En(DOS[i].w, DOS[i].h, DOS[i].color, formato);
        std::atomic<bool> fin{false};
        std::thread otro([&] {
            for (int i = 0; !fin; ++i) {
                const std::string& b = bytes[i % 2];
                switch (i % 5) {
                    case 0:  // put in its place, whole
                    case 1:
                        Crea("nueva", b);
                        fs::rename(Ruta("nueva"), ruta);
                        // Long enough that some reading meets it, however busy the machine is.
                        std::this_thread::sleep_for(std::chrono::milliseconds(2));
                        break;
                    case 2:  // written over where it is
                        Crea("foto", b);
                        break;
                    case 3:
                        Crea("foto", b.substr(0, b.size() * static_cast<unsigned>(i % 7) / 8));
                        break;
                    default:
                        fs::remove(ruta);
                }
            }
        });
        int leidas = 0;
        for (int i = 0; i < VECES || (leidas < LEIDAS && i < VECES_MAXIMAS); ++i) {
            Mapa m, muestra;
            const i32 error = P().CargaImagen(ruta, m);
            EXPECT_TRUE(error == 0 || error == 53 || error == 481) << error;
            EXPECT_EQ(m.Pixeles.size(),
                      static_cast<std::size_t>(m.Ancho) * static_cast<std::size_t>(m.Alto));
            if (error == 0) {
                ++leidas;
                EXPECT_TRUE((m.Ancho == 640 && m.Alto == 480) || (m.Ancho == 320 && m.Alto == 700));
                for (const Pixel p : m.Pixeles) ASSERT_EQ(p >> 24U, 0U);
            }
            i32 w = 0, h = 0;
            const bool medida = P().MideImagen(ruta, w, h) == 0;
            EXPECT_TRUE(!medida || (w == 640 && h == 480) || (w == 320 && h == 700));
            const bool reducida = P().CargaMuestra(ruta, 40, 30, muestra) == 0;
            EXPECT_EQ(muestra.Pixeles.size(), reducida ? 1200U : 0U);
        }
        fin = true;
        otro.join();
        EXPECT_GE(leidas, LEIDAS) << formato;
    }
}

// ---------------------------------------------------------------- names that are no text

constexpr const char* NINO = "ni\xF1o.bmp";

TEST_F(Entorno, APictureIsReadByTheBytesOfItsName) {
    for (const char* nombre : {NINO, "a\xC3.bmp", "\x80.jpg"}) {
        const std::string ruta = Crea(nombre, En(5, 4, 0xFF204060, "BMP"));
        Mapa m;
        ASSERT_EQ(P().CargaImagen(ruta, m), 0) << ruta;
        EXPECT_EQ(m.Ancho, 5);
        EXPECT_EQ(P().GuardaImagen(ruta, Mapa(7, 3, 0x102030)), 0);
        ASSERT_EQ(P().CargaImagen(ruta, m), 0);
        EXPECT_EQ(m.Ancho, 7) << "written to the same file";
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(Ruta("")), fs::directory_iterator()), 3);
}

TEST_F(Entorno, ADroppedFileComesByTheBytesOfItsName) {
    Ventana v;
    Cuadro cuadro;
    cuadro.Tamano(50, 50);
    Traido ultimo;
    v.DragDrop = [&](const Traido& t) { ultimo = t; };
    Abre(v, {&cuadro});
    QMimeData datos;
    datos.setUrls({QUrl::fromEncoded("file:///tmp/ni%F1o.bmp"),
                   QUrl::fromLocalFile(QStringLiteral("/tmp/50% de ñ #1?.bmp"))});
    const QPoint p(200, 100);
    QDragEnterEvent entra(p, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QCoreApplication::sendEvent(P().VistaDe(v), &entra);
    QDropEvent deja(p, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QCoreApplication::sendEvent(P().VistaDe(v), &deja);
    Eventos();
    EXPECT_EQ(ultimo.Ficheros,
              (std::vector<std::string>{"/tmp/ni\xF1o.bmp", "/tmp/50% de ñ #1?.bmp"}));
}

TEST_F(Entorno, ARowShowsWhatTheBytesMeanAndKeepsThem) {
    Crea(NINO, "x");
    Ventana v;
    ListaFicheros lista;
    lista.Tamano(200, 100);
    lista.Path = Ruta("");
    lista.Pattern = "*.bmp";
    CajaTexto caja;
    caja.Mueve(0, 120);
    caja.Tamano(200, 26);
    Abre(v, {&lista, &caja});
    EXPECT_EQ(lista.Elementos[0].Texto, NINO);
    EXPECT_EQ(P().VistaDe(v)->findChild<QListWidget*>()->item(0)->text(), "niño.bmp");
    caja.Escribe(lista.Elementos[0].Texto);
    P().Presenta();
    EXPECT_EQ(P().VistaDe(v)->findChild<QLineEdit*>()->text(), "niño.bmp");
    EXPECT_EQ(caja.Text, NINO) << "nothing was typed";
}

// ---------------------------------------------------------------- another time of day

TEST_F(Entorno, TheClockSetBackAYearStopsNothing) {
    constexpr long long ANO = 365LL * 24 * 3600;
    const std::string hoy = P().Fecha();
    const u32 antes = P().timeGetTime();
    reloj::Adelanta(-ANO);
    EXPECT_NE(P().Fecha(), hoy) << "the day is the one that the machine says";
    P().Duerme(5);
    EXPECT_GE(P().timeGetTime() - antes, 5U);
    EXPECT_LT(P().timeGetTime() - antes, 60000U) << "milliseconds that have passed";
    Ventana v;
    Temporizador t;
    int tics = 0;
    t.Interval = 10;
    t.Enabled = true;
    t.Timer = [&] { ++tics; };
    v.Temporizadores = {&t};
    Abre(v, {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return tics >= 3; }, 20000));
    reloj::Adelanta(-2 * ANO);
    tics = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] { return tics >= 3; }, 20000));
    reloj::Adelanta(2 * ANO);
    EXPECT_LT(P().timeGetTime() - antes, 60000U);
    P().Suena(9, false);
    EXPECT_LT(P().timeGetTime() - antes, 60000U);
}

TEST_F(Entorno, SummerTimeChangesTheHourAndNothingElse) {
    const QByteArray zona = qgetenv("TZ");
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
    constexpr long long MARZO = 1806195599;  // 2027-03-28 01:59:59 by winter time
    const u32 antes = P().timeGetTime();
    reloj::Pon(MARZO);
    const double invierno = P().Timer();
    EXPECT_EQ(P().Hora().substr(0, 3), "01:");
    reloj::Pon(MARZO + 1);
    EXPECT_EQ(P().Hora().substr(0, 3), "03:");
    EXPECT_EQ(P().Fecha(), "28/03/2027");
    EXPECT_GT(P().Timer(), invierno);
    EXPECT_LT(P().timeGetTime() - antes, 60000U);
    constexpr long long OCTUBRE = 1824944400;  // 2027-10-31 03:00 by summer time is 02:00
    reloj::Pon(OCTUBRE - 1);
    EXPECT_EQ(P().Hora().substr(0, 3), "02:");
    reloj::Pon(OCTUBRE);
    EXPECT_EQ(P().Hora().substr(0, 3), "02:");
    EXPECT_GE(P().Timer(), 7200.0);
    zona.isNull() ? qunsetenv("TZ") : qputenv("TZ", zona);
    tzset();
}

// ---------------------------------------------------------------- another language

TEST_F(Entorno, DatesHaveTheSameDigitsInEveryLanguage) {
    const QLocale antes;
    constexpr long long UN_DIA = 1795194840;  // 2026-11-20 in the afternoon
    for (const char* idioma : {"es_ES", "tr_TR", "ar_EG", "C"}) {
        QLocale::setDefault(QLocale(QLatin1String(idioma)));
        reloj::Pon(UN_DIA);
        EXPECT_EQ(P().Fecha().substr(2), "/11/2026") << idioma;
        EXPECT_EQ(P().Hora().size(), 8U) << idioma;
        EXPECT_EQ(P().Hora()[2], ':') << idioma;
        Mapa m;
        EXPECT_TRUE(P().RecursoImagen("BmpVario", m)) << idioma;
        reloj::Repon();
    }
    QLocale::setDefault(antes);
}

// ---------------------------------------------------------------- sound

// The device's other end is a pipe that nobody reads: to open it takes for ever, or, when somebody
// has it open, to write it once it is full.
class SonidoColgado : public Entorno {
protected:
    void SetUp() override {
        Entorno::SetUp();
        ASSERT_EQ(mkfifo(Ruta("aparato").c_str(), 0600), 0);
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QByteArray::fromStdString(Ruta("aparato")));
        qputenv("SDL_DISKAUDIODELAY", "0");
    }
    void TearDown() override {
        // Whoever still waits for the pipe gets on.
        const int fd = open(Ruta("aparato").c_str(), O_RDWR | O_NONBLOCK);
        char resto[65536];
        for (int i = 0; i < 200; ++i) {
            while (read(fd, resto, sizeof resto) > 0) {
            }
            QTest::qWait(1);
        }
        close(fd);
        if (oyente_ >= 0) close(oyente_);
        qputenv("SDL_AUDIODRIVER", "dummy");
        Entorno::TearDown();
    }
    // Somebody has the other end open, and reads nothing of a sound longer than the pipe holds.
    bool SeLlena(Sonidos& s) {
        oyente_ = open(Ruta("aparato").c_str(), O_RDONLY | O_NONBLOCK);
        s.Despierta();
        if (!s.Dispuesto(20000) || !s.HayAparato()) return false;
        s.Suena(14, true);
        return true;
    }
    static constexpr u32 TOPE_MS = 30000;

private:
    int oyente_ = -1;
};

TEST_F(SonidoColgado, ADeviceThatNeverOpensIsNotWaitedForAgainAndAgain) {
    constexpr int SONIDOS = 200;
    const u32 antes = P().timeGetTime();
    Sonidos s;
    for (int i = 0; i < SONIDOS; ++i) s.Suena(9, i % 2 == 0);
    EXPECT_LT(P().timeGetTime() - antes, TOPE_MS);
    EXPECT_FALSE(s.HayAparato());
}

// It holds neither the game nor its end, whether it is being given back or not.
TEST_F(SonidoColgado, ADeviceThatStopsTakingSoundHoldsNothing) {
    const u32 antes = P().timeGetTime();
    {
        Sonidos s;
        ASSERT_TRUE(SeLlena(s));
        s.Suena(9, false);
    }
    EXPECT_LT(P().timeGetTime() - antes, TOPE_MS);
}

TEST_F(SonidoColgado, ADeviceThatStopsTakingSoundIsGivenBackBesideTheGame) {
    const u32 antes = P().timeGetTime();
    {
        Sonidos s;
        ASSERT_TRUE(SeLlena(s));
        s.Descansa();
        s.Suena(9, false);
    }
    EXPECT_LT(P().timeGetTime() - antes, TOPE_MS);
}

}  // namespace
}  // namespace tessario
