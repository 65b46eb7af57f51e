// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Letras.h"

#include <QFont>
#include <QFontInfo>
#include <QPainterPath>
#include <array>
#include <cmath>

namespace tessario {

namespace {

constexpr int PIXELES_DE_MEDIR = 1000;
constexpr int PIXELES_MAXIMOS = 400;  // outlines of larger letters are scaled up from here
constexpr std::size_t TIPOS_MAXIMOS = 64, LETRAS_MAXIMAS = 4096;
constexpr int PESO_NEGRITA = 600;
// Families that fonts are told by when there is none of the name, and pitch.
constexpr int FAMILIA = 0xF0, ROMANA = 0x10, PASO_FIJO = 1, PASO = 3;

// Faces that files name and a system may have under another name.
struct Pareja {
    const char16_t* cara;
    const char* otra;
};
constexpr std::array<Pareja, 13> PAREJAS{{{u"arial", "Liberation Sans"},
                                          {u"helv", "Liberation Sans"},
                                          {u"helvetica", "Liberation Sans"},
                                          {u"ms sans serif", "Liberation Sans"},
                                          {u"ms shell dlg", "Liberation Sans"},
                                          {u"system", "Liberation Sans"},
                                          {u"tahoma", "Liberation Sans"},
                                          {u"times", "Liberation Serif"},
                                          {u"times new roman", "Liberation Serif"},
                                          {u"tms rmn", "Liberation Serif"},
                                          {u"ms serif", "Liberation Serif"},
                                          {u"courier", "Liberation Mono"},
                                          {u"courier new", "Liberation Mono"}}};

QStringList Familias(const FuenteMeta& f) {
    const QString cara = QString::fromStdU16String(f.Cara);
    QStringList l{cara};
    const QString baja = cara.toLower();
    for (const Pareja& p : PAREJAS)
        if (baja == QStringView(p.cara)) l << QString::fromLatin1(p.otra);
    if ((f.Paso & PASO) == PASO_FIJO || (f.Paso & FAMILIA) == 0x30)
        l << QStringLiteral("Liberation Mono");
    else if ((f.Paso & FAMILIA) == ROMANA)
        l << QStringLiteral("Liberation Serif");
    l << QStringLiteral("Liberation Sans") << QStringLiteral("DejaVu Sans");
    l.removeAll(QString());
    return l;
}

Trazado DeRuta(const QPainterPath& ruta) {
    Trazado t;
    const auto poligonos = ruta.toSubpathPolygons();
    for (const QPolygonF& p : poligonos) {
        Contorno c;
        c.Cerrado = true;
        for (const QPointF& q : p) c.Puntos.push_back({q.x(), q.y()});
        t.push_back(std::move(c));
    }
    return t;
}

}  // namespace

Letras::Tipo& Letras::De(const FuenteMeta& f, int pixeles) {
    const Clave clave{f.Cara, f.Peso >= PESO_NEGRITA, f.Cursiva, pixeles};
    if (const auto i = tipos_.find(clave); i != tipos_.end()) return i->second;
    if (tipos_.size() >= TIPOS_MAXIMOS) tipos_.clear();
    QFont fuente;
    fuente.setFamilies(Familias(f));
    fuente.setPixelSize(pixeles);
    fuente.setBold(f.Peso >= PESO_NEGRITA);
    fuente.setItalic(f.Cursiva);
    fuente.setHintingPreference(QFont::PreferFullHinting);
    fuente.setStyleStrategy(QFont::NoAntialias);
    return tipos_.emplace(clave, Tipo{QRawFont::fromFont(fuente), {}}).first->second;
}

LetrasMeta::Medidas Letras::Mide(const FuenteMeta& f) {
    const QRawFont& r = De(f, PIXELES_DE_MEDIR).Fuente;
    Medidas m;
    if (!r.isValid()) return m;
    m.Ascenso = r.ascent() / PIXELES_DE_MEDIR;
    m.Descenso = r.descent() / PIXELES_DE_MEDIR;
    m.Media = std::max(r.averageCharWidth() / PIXELES_DE_MEDIR, 0.05);
    return m;
}

const LetrasMeta::Letra& Letras::De(const FuenteMeta& f, double cuerpo, char16_t letra,
                                    bool porIndice) {
    const int pixeles = std::clamp(static_cast<int>(std::lround(cuerpo)), 1, PIXELES_MAXIMOS);
    Tipo& tipo = De(f, pixeles);
    quint32 indice = letra;
    if (!porIndice) {
        const QList<quint32> l = tipo.Fuente.glyphIndexesForString(QString(QChar(letra)));
        indice = l.isEmpty() ? 0 : l[0];
    }
    auto i = tipo.Hechas.find(indice);
    if (i == tipo.Hechas.end()) {
        if (tipo.Hechas.size() >= LETRAS_MAXIMAS) tipo.Hechas.clear();
        Letra l;
        l.Figura = DeRuta(tipo.Fuente.pathForGlyph(indice));
        const QList<QPointF> avances = tipo.Fuente.advancesForGlyphIndexes({indice});
        l.Avance = avances.isEmpty() ? 0 : avances[0].x();
        i = tipo.Hechas.emplace(indice, std::move(l)).first;
    }
    const double escala = cuerpo / pixeles;
    if (cuerpo <= PIXELES_MAXIMOS) return i->second;
    unica_ = i->second;
    unica_.Avance *= escala;
    for (Contorno& c : unica_.Figura)
        for (PuntoD& p : c.Puntos) p = {p.x * escala, p.y * escala};
    return unica_;
}

}  // namespace tessario
