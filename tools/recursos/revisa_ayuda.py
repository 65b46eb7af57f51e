#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the help: every topic that the program opens has a page, every link and picture is there,
every page has a title and is listed in the start page, and everything is in tessario.qrc.

Prints what is wrong and ends with 1; silent but for a count when all is well.
"""
import html.parser
import pathlib
import re
import sys

RAIZ = pathlib.Path(__file__).resolve().parents[2]
RECURSOS = RAIZ / "resources"
AYUDA = RECURSOS / "ayuda"

# Topics that messages, hints and windows open by number.
TEMAS = [1020, 1040, 2111, 2112, 2113, 2114, 2115, 2117, 2119, 2122, 2123, 2126, 2128, 2145, 2161, 2170, 2180,
         2182, 2184, 2186, 2188, 2189, 2200, 2500, 2540, 3010, 3020, 3030, 4010, 4040, 4050]
VACIAS = {"img", "br", "hr", "meta"}


class Lector(html.parser.HTMLParser):
    """Title, links and pictures of a page, and the elements that are not closed as they were opened."""

    def __init__(self):
        super().__init__()
        self.enlaces, self.imagenes, self.abiertas, self.faltas = [], [], [], []
        self.titulo = ""

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if tag == "a":
            self.enlaces.append(attrs.get("href", ""))
        if tag == "img":
            self.imagenes.append(attrs.get("src", ""))
        if tag not in VACIAS:
            self.abiertas.append(tag)

    def handle_endtag(self, tag):
        if not self.abiertas or self.abiertas.pop() != tag:
            self.faltas.append("</%s> does not match" % tag)

    def handle_data(self, data):
        if self.abiertas and self.abiertas[-1] == "title":
            self.titulo += data
        if re.search(r"\[\[|\]\]|\{[a-z]+[:}]", data) and "style" not in self.abiertas:
            self.faltas.append("unfilled mark: " + data.strip()[:40])


def main():
    faltas = []
    qrc = (RECURSOS / "tessario.qrc").read_text(encoding="utf-8")
    en_qrc = set(re.findall(r">([^<]+)</file>", qrc))
    hojas = {}
    for ruta in sorted(AYUDA.glob("*.html")):
        lector = Lector()
        lector.feed(ruta.read_text(encoding="utf-8"))
        hojas[ruta.name] = lector
        faltas += ["%s: %s" % (ruta.name, f) for f in lector.faltas]
        if lector.abiertas:
            faltas.append("%s: left open: %s" % (ruta.name, lector.abiertas))
        if not lector.titulo.strip():
            faltas.append("%s: no title" % ruta.name)
        for destino in lector.enlaces + lector.imagenes:
            archivo = (AYUDA / destino.split("#")[0]).resolve()
            if not archivo.is_file():
                faltas.append("%s: missing %s" % (ruta.name, destino))
            elif archivo.relative_to(RECURSOS).as_posix() not in en_qrc:
                faltas.append("%s: %s is not in the qrc" % (ruta.name, destino))
        if "ayuda/" + ruta.name not in en_qrc:
            faltas.append("%s is not in the qrc" % ruta.name)
        if ruta.name != "inicio.html" and "inicio.html" not in lector.enlaces:
            faltas.append("%s: no way back to the start page" % ruta.name)
    for tema in TEMAS:
        if "%d.html" % tema not in hojas:
            faltas.append("no page for topic %d" % tema)
    portada = set(hojas["inicio.html"].enlaces) if "inicio.html" in hojas else set()
    faltas += ["%s is not in the start page" % h for h in hojas if h != "inicio.html" and h not in portada]
    faltas += ["the qrc names %s, which is missing" % f for f in sorted(en_qrc) if not (RECURSOS / f).is_file()]
    for archivo in sorted((AYUDA / "imagenes").glob("*")):
        if not any(i == "imagenes/" + archivo.name for h in hojas.values() for i in h.imagenes):
            faltas.append("%s is not used" % archivo.name)
    for f in faltas:
        print("FAULT:", f)
    print("%d pages, %d topics, %d faults" % (len(hojas), len(TEMAS), len(faltas)))
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
