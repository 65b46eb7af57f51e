#include "qt/Imagenes.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>

#include "core/Errores.h"

namespace tessario::imagenes {

namespace {

// The largest picture that is read, in pixels: half a gigabyte once decoded.
constexpr long long PIXELES_MAXIMOS = 128LL * 1024 * 1024;
constexpr int MEMORIA_MAXIMA_MB = 520;

constexpr std::array<const char*, 5> FORMATOS{"bmp", "jpeg", "jpg", "png", "gif"};

bool Conocido(const QByteArray& formato) {
    return std::any_of(FORMATOS.begin(), FORMATOS.end(),
                       [&](const char* f) { return formato == f; });
}

// Is this a bitmap file whose header claims more than we read? The reader refuses those as if they
// were no picture at all.
bool BmpDesmedido(QIODevice& origen) {
    const QByteArray c = origen.peek(26);
    if (c.size() < 26 || !c.startsWith("BM") || static_cast<unsigned char>(c[14]) < 40)
        return false;
    qint32 ancho = 0, alto = 0;
    std::memcpy(&ancho, c.constData() + 18, 4);
    std::memcpy(&alto, c.constData() + 22, 4);
    return std::abs(static_cast<long long>(ancho)) * std::abs(static_cast<long long>(alto)) >
           PIXELES_MAXIMOS;
}

i32 Lee(QIODevice& origen, Mapa& destino) {
    if (BmpDesmedido(origen)) return ERROR_MEMORIA;
    QImageReader lector(&origen);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    QImageReader::setAllocationLimit(MEMORIA_MAXIMA_MB);
    if (!lector.canRead() || !Conocido(lector.format())) return ERROR_IMAGEN;
    const QSize medida = lector.size();
    if (medida.isValid()) {
        if (medida.isEmpty()) return ERROR_IMAGEN;
        if (static_cast<long long>(medida.width()) * medida.height() > PIXELES_MAXIMOS)
            return ERROR_MEMORIA;
    }
    // Pixels that the file skips stay as they are, so the image is made and filled first.
    QImage imagen;
    if (medida.isValid() && lector.imageFormat() != QImage::Format_Invalid) {
        imagen = QImage(medida, lector.imageFormat());
        if (imagen.isNull()) return ERROR_MEMORIA;
        imagen.fill(0);
    }
    if (!lector.read(&imagen) || imagen.isNull()) return ERROR_IMAGEN;
    destino = Convierte(std::move(imagen));
    return destino.Ancho > 0 ? 0 : ERROR_IMAGEN;
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
    const QString nombre = QFile::decodeName(ruta.c_str());
    const QFileInfo info(nombre);
    if (!info.isFile()) return ERROR_FICHERO;
    QFile f(nombre);
    if (!f.open(QIODevice::ReadOnly)) return ERROR_ACCESO;
    try {
        return Lee(f, destino);
    } catch (const std::bad_alloc&) {
        return ERROR_MEMORIA;
    }
}

i32 Guarda(const std::string& ruta, const Mapa& imagen) {
    const QString nombre = QFile::decodeName(ruta.c_str());
    const QFileInfo info(nombre);
    if (!QFileInfo(info.absolutePath()).isDir()) return ERROR_RUTA;
    if (imagen.Ancho <= 0 || imagen.Alto <= 0) return ERROR_ACCESO;
    const QImage lienzo(reinterpret_cast<const uchar*>(imagen.Pixeles.data()), imagen.Ancho,
                        imagen.Alto, static_cast<qsizetype>(imagen.Ancho) * 4,
                        QImage::Format_RGB32);
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    if (!lienzo.save(&memoria, "BMP")) return ERROR_ACCESO;
    QSaveFile f(nombre);
    if (!f.open(QIODevice::WriteOnly)) return errno == ENOSPC ? ERROR_LLENO : ERROR_ACCESO;
    if (f.write(bytes) != bytes.size() || !f.commit()) return ERROR_LLENO;
    return 0;
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
