// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: a picture file of any kind, as the game meets it: measured, loaded, made small for a
// preview, loaded as one of a foreign kind.
#include <QFile>
#include <QTemporaryDir>

#include "Ventanas.h"
#include "qt/Imagenes.h"

namespace tessario {
namespace {

constexpr long long PIXELES = 1 << 20;  // larger ones would make a run slow
constexpr i32 ANCHO_PEQUENA = 64, ALTO_PEQUENA = 48;

void ExigePixeles(const Mapa& m) {
    for (const Pixel p : m.Pixeles) Exige((p >> 24) == 0, "a pixel is 0x00RRGGBB");
}

// Loads into a picture that is already there: it is replaced or left as it was.
template <class F>
i32 Sobre(Mapa& m, F&& carga) {
    m = Mapa(3, 2, 0x123456);
    const i32 error = carga(m);
    if (error) Exige(m.Ancho == 3 && m.Alto == 2, "a picture that cannot be read changes nothing");
    ExigePixeles(m);
    return error;
}

}  // namespace
}  // namespace tessario

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    AplicacionDeFuzz();
    static const QTemporaryDir carpeta;
    const std::string ruta = carpeta.filePath(QStringLiteral("imagen")).toStdString();
    QFile f(QString::fromStdString(ruta));
    Exige(f.open(QIODevice::WriteOnly), "the file can be written");
    f.write(reinterpret_cast<const char*>(bytes), static_cast<qint64>(n));
    f.close();

    i32 ancho = 0, alto = 0;
    const i32 medida = imagenes::Mide(ruta, ancho, alto);
    if (medida == 0) Exige(ancho > 0 && alto > 0, "a picture has a size");
    if (static_cast<long long>(ancho) * alto > PIXELES) return 0;
    Mapa m;
    if (Sobre(m, [&](Mapa& d) { return imagenes::Carga(ruta, d); }) == 0)
        Exige(medida == 0 && m.Ancho == ancho && m.Alto == alto, "the size is the one measured");
    const auto reduce = [&](Mapa& d) {
        return imagenes::CargaReducida(ruta, ANCHO_PEQUENA, ALTO_PEQUENA, d);
    };
    if (Sobre(m, reduce) == 0)
        Exige(m.Ancho == ANCHO_PEQUENA && m.Alto == ALTO_PEQUENA, "the preview has its size");
    if (medida == 0) Sobre(m, [&](Mapa& d) { return imagenes::CargaAjena(ruta, d); });
    return 0;
}
