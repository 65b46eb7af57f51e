// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Imagenes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>

#include "core/Errores.h"
#include "platform/Dib.h"
#include "platform/Metafichero.h"
#include "qt/Letras.h"
#include "records/Archivo.h"

namespace tessario::imagenes {

namespace {

// The largest picture that is read, in pixels: half a gigabyte once decoded.
constexpr long long PIXELES_MAXIMOS = 128LL * 1024 * 1024;
constexpr int MEMORIA_MAXIMA_MB = 520;

constexpr std::array<const char*, 4> FORMATOS{"jpeg", "jpg", "png", "gif"};
// The largest file, in bytes: what the largest picture takes at four bytes for each pixel.
constexpr qint64 FICHERO_MAXIMO = 4 * PIXELES_MAXIMOS + 65536;

bool Conocido(const QByteArray& formato) {
    return std::any_of(FORMATOS.begin(), FORMATOS.end(),
                       [&](const char* f) { return formato == f; });
}

// Files of kinds that are read by our own readers.
enum class Propia { Ninguna, Bmp, Metafichero };

Propia ClaseDe(QIODevice& origen) {
    constexpr qint64 CABEZA = 128;
    const QByteArray c = origen.peek(CABEZA);
    const Bytes b(reinterpret_cast<const u8*>(c.constData()), static_cast<std::size_t>(c.size()));
    if (EsBmp(b)) return Propia::Bmp;
    return EsMetafichero(b) ? Propia::Metafichero : Propia::Ninguna;
}

i32 ErrorDe(Lectura l) {
    return l == Lectura::Bien ? 0 : l == Lectura::Desmedida ? ERROR_MEMORIA : ERROR_IMAGEN;
}

i32 LeePropia(QIODevice& origen, Propia clase, Mapa& destino) {
    const auto maximo = clase == Propia::Bmp ? FICHERO_MAXIMO : qint64{METAFICHERO_BYTES};
    if (origen.size() > maximo) return ERROR_MEMORIA;
    const QByteArray c = origen.read(maximo);  // however much it grows meanwhile
    const Bytes b(reinterpret_cast<const u8*>(c.constData()), static_cast<std::size_t>(c.size()));
    if (clase == Propia::Bmp) return ErrorDe(LeeBmp(b, destino));
    Letras letras;
    PintorRaster pintor(letras);
    const i32 error = ErrorDe(PintaMetafichero(b, pintor));
    if (error == 0) destino = std::move(pintor.Dibujo());
    return error;
}

i32 MidePropia(QIODevice& origen, Propia clase, i32& ancho, i32& alto) {
    constexpr qint64 CABEZA = 64 * 1024;
    const QByteArray c = origen.peek(CABEZA);
    const Bytes b(reinterpret_cast<const u8*>(c.constData()), static_cast<std::size_t>(c.size()));
    return ErrorDe(clase == Propia::Bmp ? MideBmp(b, ancho, alto)
                                        : MideMetafichero(b, ancho, alto));
}

enum class Clases { DeListas, Todas };

// What a reader says before it decodes: its kind and size are ones that we read.
i32 Examina(QImageReader& lector, Clases clases, QSize& medida) {
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    QImageReader::setAllocationLimit(MEMORIA_MAXIMA_MB);
    if (!lector.canRead()) return ERROR_IMAGEN;
    if (clases == Clases::DeListas && !Conocido(lector.format())) return ERROR_IMAGEN;
    medida = lector.size();
    if (!medida.isValid()) return 0;
    if (medida.isEmpty()) return ERROR_IMAGEN;
    if (static_cast<long long>(medida.width()) * medida.height() > PIXELES_MAXIMOS)
        return ERROR_MEMORIA;
    return 0;
}

bool Girada(const QImageReader& lector) {
    return (lector.transformation() & QImageIOHandler::TransformationRotate90) != 0;
}

i32 Decodifica(QImageReader& lector, QSize medida, Mapa& destino) {
    // Pixels that the file skips stay as they are, so the image is made and filled first.
    QImage imagen;
    if (medida.isValid() && lector.imageFormat() != QImage::Format_Invalid) {
        imagen = QImage(medida, lector.imageFormat());
        if (imagen.isNull()) return ERROR_MEMORIA;
        imagen.fill(0);
    }
    if (!lector.read(&imagen) || imagen.isNull()) return ERROR_IMAGEN;
    Mapa leida = Convierte(std::move(imagen));
    if (leida.Ancho <= 0) return ERROR_IMAGEN;
    destino = std::move(leida);
    return 0;
}

i32 Lee(QIODevice& origen, Clases clases, Mapa& destino) {
    if (const Propia p = ClaseDe(origen); p != Propia::Ninguna)
        return LeePropia(origen, p, destino);
    QImageReader lector(&origen);
    QSize medida;
    if (const i32 error = Examina(lector, clases, medida)) return error;
    return Decodifica(lector, medida, destino);
}

i32 LeeMedida(QIODevice& origen, i32& ancho, i32& alto) {
    if (const Propia p = ClaseDe(origen); p != Propia::Ninguna)
        return MidePropia(origen, p, ancho, alto);
    QImageReader lector(&origen);
    QSize medida;
    if (const i32 error = Examina(lector, Clases::DeListas, medida)) return error;
    if (!medida.isValid()) {
        Mapa entera;
        if (const i32 error = Decodifica(lector, medida, entera)) return error;
        medida = {entera.Ancho, entera.Alto};
    } else if (Girada(lector)) {
        medida.transpose();
    }
    ancho = medida.width();
    alto = medida.height();
    return 0;
}

// The picture at exactly this size: each pixel is the one under its centre.
Mapa Estira(const Mapa& m, i32 ancho, i32 alto) {
    if (m.Ancho == ancho && m.Alto == alto) return m;
    Mapa r(ancho, alto);
    const auto bajo = [](i32 i, i32 de, i32 a) {
        return static_cast<i32>((2LL * i + 1) * de / (2LL * a));
    };
    std::vector<i32> columnas(static_cast<std::size_t>(ancho));
    for (i32 x = 0; x < ancho; ++x) columnas[static_cast<std::size_t>(x)] = bajo(x, m.Ancho, ancho);
    for (i32 y = 0; y < alto; ++y) {
        const Pixel* const de = m.Fila(bajo(y, m.Alto, alto));
        std::transform(columnas.begin(), columnas.end(), r.Fila(y), [de](i32 x) { return de[x]; });
    }
    return r;
}

// Decoders that can leave out what a smaller picture does not need, and do so in large steps.
i32 LeeReducida(QIODevice& origen, i32 ancho, i32 alto, Mapa& destino) {
    Mapa m;
    if (const Propia p = ClaseDe(origen); p != Propia::Ninguna) {
        if (const i32 error = LeePropia(origen, p, m)) return error;
        destino = Estira(m, ancho, alto);
        return 0;
    }
    QImageReader lector(&origen);
    QSize medida;
    if (const i32 error = Examina(lector, Clases::DeListas, medida)) return error;
    if (medida.isValid() && lector.format() == "jpeg") {
        const QSize pedida = Girada(lector) ? QSize(alto, ancho) : QSize(ancho, alto);
        if (medida.width() >= 2 * pedida.width() && medida.height() >= 2 * pedida.height()) {
            lector.setScaledSize(pedida);
            medida = {};
        }
    }
    if (const i32 error = Decodifica(lector, medida, m)) return error;
    destino = Estira(m, ancho, alto);
    return 0;
}

// A file is told from a pipe or a device once it is open, without waiting for either; by its own
// bytes, for its name need be no text.
i32 Abre(const std::string& ruta, QFile& f) {
    const int fd = open(ruta.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0) return errno == EACCES ? ERROR_ACCESO : ERROR_FICHERO;
    struct stat datos {};
    const bool esFichero = fstat(fd, &datos) == 0 && S_ISREG(datos.st_mode);
    if (!esFichero || !f.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        close(fd);
        return ERROR_FICHERO;
    }
    return f.size() > FICHERO_MAXIMO ? ERROR_MEMORIA : 0;
}

// Opens the file and hands it to a reader.
template <class F>
i32 ConFichero(const std::string& ruta, F&& lee) {
    QFile f;
    if (const i32 error = Abre(ruta, f)) return error;
    try {
        return lee(f);
    } catch (const std::bad_alloc&) {
        return ERROR_MEMORIA;
    }
}

}  // namespace

Mapa Convierte(QImage imagen) {
    if (imagen.isNull()) return {};
    if (imagen.hasAlphaChannel()) {
        QImage fondo(imagen.size(), QImage::Format_RGB32);
        if (fondo.isNull()) return {};
        fondo.fill(Qt::white);
        QPainter(&fondo).drawImage(0, 0, imagen);
        imagen = std::move(fondo);
    } else if (imagen.format() != QImage::Format_RGB32) {
        imagen = std::move(imagen).convertToFormat(QImage::Format_RGB32);
    }
    if (imagen.isNull()) return {};
    Mapa m(imagen.width(), imagen.height());
    for (i32 y = 0; y < m.Alto; ++y) {
        const auto* const de = reinterpret_cast<const Pixel*>(imagen.constScanLine(y));
        std::transform(de, de + m.Ancho, m.Fila(y), [](Pixel p) { return p & 0xFFFFFFU; });
    }
    return m;
}

i32 Carga(const std::string& ruta, Mapa& destino) {
    return ConFichero(ruta, [&](QFile& f) { return Lee(f, Clases::DeListas, destino); });
}

i32 CargaAjena(const std::string& ruta, Mapa& destino) {
    return ConFichero(ruta, [&](QFile& f) { return Lee(f, Clases::Todas, destino); });
}

i32 DeMemoria(const QByteArray& bytes, Mapa& destino) {
    QBuffer memoria;
    memoria.setData(bytes);
    memoria.open(QIODevice::ReadOnly);
    try {
        return Lee(memoria, Clases::Todas, destino);
    } catch (const std::bad_alloc&) {
        return ERROR_MEMORIA;
    }
}

i32 Mide(const std::string& ruta, i32& ancho, i32& alto) {
    return ConFichero(ruta, [&](QFile& f) { return LeeMedida(f, ancho, alto); });
}

i32 CargaReducida(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino) {
    if (ancho <= 0 || alto <= 0) return ERROR_IMAGEN;
    return ConFichero(ruta, [&](QFile& f) { return LeeReducida(f, ancho, alto, destino); });
}

i32 Guarda(const std::string& ruta, const Mapa& imagen) {
    if (imagen.Ancho <= 0 || imagen.Alto <= 0) return ERROR_ACCESO;
    const QImage lienzo(reinterpret_cast<const uchar*>(imagen.Pixeles.data()), imagen.Ancho,
                        imagen.Alto, static_cast<qsizetype>(imagen.Ancho) * 4,
                        QImage::Format_RGB32);
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    if (!lienzo.save(&memoria, "BMP")) return ERROR_ACCESO;
    return EscribeFichero(ruta, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

bool Recurso(std::string_view nombre, Mapa& destino) {
    const QString n = QString::fromUtf8(nombre.data(), static_cast<qsizetype>(nombre.size()));
    for (const QString& clave : {n, n.toLower()}) {
        const QImage imagen(QStringLiteral(":/imagenes/%1.png").arg(clave));
        if (imagen.isNull()) continue;
        destino = Convierte(imagen);
        return true;
    }
    return false;
}

}  // namespace tessario::imagenes
