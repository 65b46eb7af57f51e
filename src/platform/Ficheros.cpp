// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Ficheros.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

#include "platform/Controles.h"

namespace tessario {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t LISTA_MAXIMA = 65536;  // bytes of the desktop's list of folders

// The letters of ASCII alone: what is small to the player's language is none of a file's name.
std::string SinCaja(std::string_view t) {
    std::string s(t);
    for (char& c : s)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return s;
}

// "*" for any run of characters, "?" for one; both texts in lower case.
bool Casa(std::string_view texto, std::string_view patron) {
    std::size_t t = 0, p = 0, estrella = std::string_view::npos, vuelta = 0;
    while (t < texto.size()) {
        if (p < patron.size() && (patron[p] == '?' || patron[p] == texto[t])) {
            ++t;
            ++p;
        } else if (p < patron.size() && patron[p] == '*') {
            estrella = p++;
            vuelta = t;
        } else if (estrella != std::string_view::npos) {
            p = estrella + 1;
            t = ++vuelta;
        } else {
            return false;
        }
    }
    while (p < patron.size() && patron[p] == '*') ++p;
    return p == patron.size();
}

std::vector<std::string> Partes(const std::string& patron) {
    std::vector<std::string> partes;
    for (std::size_t i = 0; i <= patron.size();) {
        const std::size_t fin = std::min(patron.find(';', i), patron.size());
        if (fin > i) partes.push_back(SinCaja(patron.substr(i, fin - i)));
        i = fin + 1;
    }
    return partes;
}

// A name that begins with a dot is matched only by a pattern that says so.
bool Casa(std::string_view nombre, const std::vector<std::string>& partes) {
    const bool oculto = nombre.starts_with('.');
    if (partes.empty()) return !oculto;
    return std::any_of(partes.begin(), partes.end(), [&](const std::string& p) {
        return p.starts_with('.') == oculto && Casa(nombre, std::string_view(p));
    });
}

// The names of a folder for which `vale` holds, in order.
template <class F>
std::vector<std::string> Nombres(const std::string& ruta, F&& vale) {
    std::vector<std::string> nombres;
    std::error_code e;
    fs::directory_iterator i(ruta, fs::directory_options::skip_permission_denied, e);
    for (; !e && i != fs::directory_iterator(); i.increment(e)) {
        const std::string nombre = i->path().filename().string();
        if (vale(*i, nombre)) nombres.push_back(nombre);
    }
    std::sort(nombres.begin(), nombres.end(), [](const std::string& a, const std::string& b) {
        const std::string x = SinCaja(a), y = SinCaja(b);
        return x != y ? x < y : a < b;
    });
    return nombres;
}

void Montajes(const std::string& base, int hondura, std::vector<Unidad>& salida) {
    for (const std::string& nombre : CarpetasDe(base)) {
        if (hondura > 1)
            Montajes(base + nombre + "/", hondura - 1, salida);
        else
            salida.push_back({nombre, base + nombre + "/"});
    }
}

std::string ConBarra(std::string ruta) {
    if (!ruta.empty() && ruta.back() != '/') ruta += '/';
    return ruta;
}

// The player's own folder; empty when there is none.
std::string CarpetaPersonal() {
    const passwd* const yo = getpwuid(getuid());
    return yo && yo->pw_dir && yo->pw_dir[0] == '/' ? ConBarra(yo->pw_dir) : std::string();
}

// A small file's content; nothing of what is no file, so that nothing is waited for: that has the
// largest size there is.
std::string Texto(const std::string& ruta) {
    std::error_code e;
    if (fs::file_size(ruta, e) > LISTA_MAXIMA) return {};
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

// Where the desktop keeps the player's pictures: what its own list of folders says, else one of the
// usual names. Empty when there is none.
std::string CarpetaDeFotos(const std::string& casa) {
    constexpr std::string_view clave = "XDG_PICTURES_DIR=\"", hogar = "$HOME/";
    std::vector<std::string> candidatas;
    std::istringstream lista(Texto(casa + ".config/user-dirs.dirs"));
    for (std::string linea; std::getline(lista, linea);) {
        if (!linea.starts_with(clave)) continue;
        std::string ruta = linea.substr(clave.size(), linea.rfind('"') - clave.size());
        if (ruta.starts_with(hogar)) ruta.replace(0, hogar.size(), casa);
        candidatas.push_back(ruta);
    }
    for (const char* nombre : {"Imágenes", "Pictures"}) candidatas.push_back(casa + nombre);
    std::error_code e;
    for (const std::string& ruta : candidatas)
        if (ruta.starts_with('/') && fs::is_directory(ruta, e)) return ConBarra(ruta);
    return {};
}

}  // namespace

std::vector<Unidad> Unidades() {
    std::vector<Unidad> u;
    if (const std::string casa = CarpetaPersonal(); casa.size() > 1) {
        u.push_back({"Personal", casa});
        if (const std::string fotos = CarpetaDeFotos(casa); !fotos.empty() && fotos != casa)
            u.push_back({"Imágenes", fotos});
    }
    u.push_back({"Equipo ( / )", "/"});
    // The media that the desktop mounts lie one level below the player's name.
    Montajes("/media/", 2, u);
    Montajes("/run/media/", 2, u);
    Montajes("/mnt/", 1, u);
    return u;
}

std::vector<std::string> CarpetasDe(const std::string& ruta) {
    return Nombres(ruta, [](const fs::directory_entry& d, const std::string& nombre) {
        std::error_code e;
        return !nombre.starts_with('.') && d.is_directory(e);
    });
}

std::vector<std::string> FicherosDe(const std::string& ruta, const std::string& patron) {
    const std::vector<std::string> partes = Partes(patron);
    return Nombres(ruta, [&](const fs::directory_entry& d, const std::string& nombre) {
        std::error_code e;
        if (!d.is_regular_file(e)) return false;
        return Casa(SinCaja(nombre), partes);
    });
}

void ListaFicheros::Relee() {
    rutaLeida_ = Path;
    patronLeido_ = Pattern;
    Elementos.clear();
    ListIndex = -1;
    for (const std::string& nombre : FicherosDe(Path, Pattern)) Elementos.push_back({nombre, 0});
}

void ListaFicheros::Actualiza() {
    if (rutaLeida_ != Path || patronLeido_ != Pattern) Relee();
}

}  // namespace tessario
