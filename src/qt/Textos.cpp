// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Textos.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

namespace tessario {

namespace {

constexpr std::size_t ANCHOS_GUARDADOS = 4096;  // widths kept for one font before a fresh start
constexpr i16 LETRA_MINIMA = 9;                 // pixels; nothing is set smaller to fit
constexpr i32 CASI_LLENO = 85;                  // percent of the width from which a line is full
constexpr i32 ENSANCHE_MAXIMO = 3;              // a blank grows by at most so many of its own width
constexpr i32 APRIETO = 4;                      // a blank may lose this part of its width
constexpr i32 REBORDE = 3;                      // glyphs may reach out of their box by so much

QString Qs(std::string_view t) {
    return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
}

QRegion RegionQt(const Region& r) {
    QRegion q;
    for (const Rect& c : r.Rectangulos()) q += QRect(c.Izq, c.Arr, c.Ancho(), c.Alto());
    return q;
}

// The paragraph with its runs of blanks folded, those at its beginning kept.
QString Pliega(const QString& p) {
    qsizetype sangria = 0;
    while (sangria < p.size() && p[sangria] == u' ') ++sangria;
    return p.left(sangria) + p.mid(sangria).simplified();
}

// The least width of a line: its blanks may give way a little, as a printer sets a tight line.
i32 AnchoApretado(const QString& renglon, const QFontMetrics& m) {
    const auto huecos = static_cast<i32>(renglon.trimmed().count(u' '));
    return m.horizontalAdvance(renglon) - huecos * m.horizontalAdvance(u' ') / APRIETO;
}

// Where the line that begins at `inicio` ends: after the last word that fits, its blank not
// counted; a word wider than the line is cut within.
qsizetype FinDeRenglon(const QString& p, qsizetype inicio, const QFontMetrics& m, i32 ancho) {
    const auto cabe = [&](qsizetype fin) {
        return AnchoApretado(p.mid(inicio, fin - inicio), m) <= ancho;
    };
    qsizetype corte = inicio;
    for (qsizetype i = inicio; i < p.size();) {
        while (i < p.size() && p[i] == u' ') ++i;
        while (i < p.size() && p[i] != u' ')
            if (p[i++] == u'/') break;
        if (!cabe(i)) break;
        corte = i;
    }
    if (corte > inicio) return corte;
    corte = inicio + 1;
    while (corte < p.size() && cabe(corte + 1)) ++corte;
    return corte;
}

// Cuts one paragraph; its last line is left as it is.
void CortaParrafo(const QString& p, const QFontMetrics& m, i32 ancho,
                  std::vector<Renglon>& salida) {
    qsizetype inicio = 0;
    do {
        const qsizetype fin = FinDeRenglon(p, inicio, m, ancho);
        salida.push_back({p.mid(inicio, fin - inicio), true});
        inicio = fin;
        while (inicio < p.size() && p[inicio] == u' ') ++inicio;
    } while (inicio < p.size());
    salida.back().lleno = false;
}

}  // namespace

QFont FuenteQt(const Fuente& f) {
    QFont q;
    if (f.Tipo == Familia::Mono) {
        q.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("monospace")});
        q.setStyleHint(QFont::Monospace);
    } else {
        q.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("sans-serif")});
        q.setStyleHint(QFont::SansSerif);
    }
    q.setPixelSize(std::max<int>(1, f.Tamano));
    q.setBold(f.Negrita);
    q.setUnderline(f.Subrayado);
    q.setHintingPreference(QFont::PreferFullHinting);
    q.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return q;
}

Textos::Ficha& Textos::Entrada(const Fuente& f) {
    const int clave = (f.Tamano << 3) | (f.Subrayado ? 4 : 0) | (f.Negrita ? 2 : 0) |
                      (f.Tipo == Familia::Mono ? 1 : 0);
    const auto i = fichas_.find(clave);
    return i != fichas_.end() ? i->second : fichas_.emplace(clave, f).first->second;
}

i32 Textos::Ancho(const Fuente& f, std::string_view texto) {
    Ficha& e = Entrada(f);
    std::string clave(texto);
    const auto i = e.anchos.find(clave);
    if (i != e.anchos.end()) return i->second;
    if (e.anchos.size() >= ANCHOS_GUARDADOS) e.anchos.clear();
    const i32 ancho = e.medida.horizontalAdvance(Qs(texto));
    e.anchos.emplace(std::move(clave), ancho);
    return ancho;
}

i32 Textos::Alto(const Fuente& f) {
    return Entrada(f).medida.height();
}

void PintaFino(QPainter& p, const TextoFino& t, const Rect& caja) {
    const QImage fino(reinterpret_cast<const uchar*>(t.Pixeles.Pixeles.data()), t.Pixeles.Ancho,
                      t.Pixeles.Alto, static_cast<qsizetype>(t.Pixeles.Ancho) * 4,
                      QImage::Format_RGB32);
    const i32 f = t.Factor;
    for (const Rect& v : t.Vale) {
        const Rect r = Interseccion(v, caja);
        if (r.Vacio()) continue;
        p.drawImage(QRectF(r.Izq, r.Arr, r.Ancho(), r.Alto()), fino,
                    QRectF((r.Izq - t.Izq) * f, (r.Arr - t.Arr) * f, r.Ancho() * f, r.Alto() * f));
    }
}

namespace {

// What the screen shows of a box so far: its pixels as squares, its fine texts.
TextoFino Ampliado(const Superficie& s, const Rect& caja, i32 f) {
    TextoFino t{caja.Izq, caja.Arr, f, Mapa(caja.Ancho() * f, caja.Alto() * f), {caja}};
    for (i32 y = 0; y < t.Pixeles.Alto; ++y) {
        const Pixel* const o = s.Fila(caja.Arr + y / f) + caja.Izq;
        Pixel* const d = t.Pixeles.Fila(y);
        for (i32 x = 0; x < t.Pixeles.Ancho; ++x) d[x] = o[x / f];
    }
    return t;
}

QImage Lienzo(Mapa& m) {
    return {reinterpret_cast<uchar*>(m.Pixeles.data()), m.Ancho, m.Alto,
            static_cast<qsizetype>(m.Ancho) * 4, QImage::Format_RGB32};
}

// The painter leaves 0xFF in the upper byte of what it blends; ours is always 0.
void QuitaOpacidad(Pixel* p, i32 cuantos) {
    for (i32 i = 0; i < cuantos; ++i) p[i] &= 0xFFFFFFU;
}

}  // namespace

void Textos::Pinta(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                   Color color) {
    if (texto.empty() || s.Limites().Vacio()) return;
    // Far outside there is nothing to paint, and the sums below could overflow.
    constexpr i32 LEJOS = 100000;
    if (x < -LEJOS || x > LEJOS || y < -LEJOS || y > LEJOS) return;
    Ficha& e = Entrada(f);
    const Rect caja = Interseccion(
        s.Limites(),
        {x - REBORDE, y - REBORDE, x + Ancho(f, texto) + REBORDE, y + e.medida.height() + REBORDE});
    if (caja.Vacio()) return;
    // The painter counts in the surface's pixels.
    const auto escribe = [&](QPainter& p) {
        QRegion recorte(caja.Izq, caja.Arr, caja.Ancho(), caja.Alto());
        if (s.Recorte()) recorte &= RegionQt(*s.Recorte());
        p.setClipRegion(recorte);
        p.setFont(e.letra);
        p.setPen(QColor::fromRgb(PixelDe(color)));
        p.drawText(x, y + e.medida.ascent(), Qs(texto));
    };
    TextoFino fino;
    const bool afina = Escala > 1 && !s.Auxiliar;
    if (afina) {
        fino = Ampliado(s, caja, Escala);
        QImage lienzo = Lienzo(fino.Pixeles);
        QPainter p(&lienzo);
        p.scale(Escala, Escala);
        p.translate(-caja.Izq, -caja.Arr);
        for (const TextoFino& t : s.Finos())
            if (t.Factor == Escala) PintaFino(p, t, caja);
        escribe(p);
        p.end();
        QuitaOpacidad(fino.Pixeles.Pixeles.data(), fino.Pixeles.Ancho * fino.Pixeles.Alto);
    }
    {
        QImage lienzo(reinterpret_cast<uchar*>(s.Fila(0)), s.Width(), s.Height(),
                      static_cast<qsizetype>(s.Width()) * 4, QImage::Format_RGB32);
        QPainter p(&lienzo);
        escribe(p);
    }
    for (i32 fila = caja.Arr; fila < caja.Aba; ++fila)
        QuitaOpacidad(s.Fila(fila) + caja.Izq, caja.Ancho());
    s.Marca(caja);
    if (afina) s.PonFino(std::move(fino));
}

std::vector<Renglon> Textos::Renglones(const Fuente& f, std::string_view texto, i32 ancho) {
    QString t = Qs(texto);
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    t.replace(u'\r', u'\n');
    const QFontMetrics& m = Entrada(f).medida;
    std::vector<Renglon> salida;
    const QStringList parrafos = t.split(u'\n');
    for (const QString& parrafo : parrafos) {
        CortaParrafo(Pliega(parrafo), m, ancho, salida);
        Renglon& ultimo = salida.back();
        ultimo.lleno = &parrafo != &parrafos.back() &&
                       m.horizontalAdvance(ultimo.texto) * 100 >= ancho * CASI_LLENO;
    }
    return salida;
}

i32 Textos::AnchoMinimo(const Fuente& f, const Renglon& r) {
    return AnchoApretado(r.texto, Entrada(f).medida);
}

void Textos::PintaRenglon(QPainter& p, const Fuente& f, const Renglon& r, i32 y, i32 ancho,
                          bool centrado) {
    const QFontMetrics& m = Entrada(f).medida;
    const i32 base = y + m.ascent(), sobra = ancho - m.horizontalAdvance(r.texto);
    const QStringList palabras = r.texto.split(u' ', Qt::SkipEmptyParts);
    const auto huecos = static_cast<i32>(palabras.size()) - 1;
    const i32 blanco = m.horizontalAdvance(u' ');
    const bool ajusta = sobra < 0 || (r.lleno && sobra <= huecos * blanco * ENSANCHE_MAXIMO);
    if (huecos < 1 || !ajusta) {
        p.drawText(centrado ? sobra / 2 : 0, base, r.texto);
        return;
    }
    i32 x = 0;
    while (r.texto[x] == u' ') ++x;
    x *= blanco;
    for (i32 i = 0; i <= huecos; ++i) {
        // Each word stands where the widths so far and its share of the rest bring it.
        p.drawText(x + sobra * i / huecos, base, palabras[i]);
        x += m.horizontalAdvance(palabras[i]) + blanco;
    }
}

i32 Textos::AltoBloque(const Fuente& f, std::size_t renglones) {
    if (renglones == 0) return 0;
    return static_cast<i32>(renglones - 1) * Interlinea(f) + Medida(f).height();
}

Fuente Textos::QueCabe(const Fuente& f, std::string_view texto, i32 ancho, i32 alto) {
    Fuente letra = f;
    while (letra.Tamano > LETRA_MINIMA) {
        const std::size_t n = Renglones(letra, texto, ancho).size();
        if (n <= 1 || AltoBloque(letra, n) <= alto) break;
        --letra.Tamano;
    }
    return letra;
}

}  // namespace tessario
