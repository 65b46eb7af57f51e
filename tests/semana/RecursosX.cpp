// SPDX-License-Identifier: GPL-3.0-or-later
#include "semana/RecursosX.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace tessario {

namespace {

using Bytes = std::vector<unsigned char>;

constexpr unsigned char QUERY_EXTENSION = 98, GET_ATOM_NAME = 17;
constexpr unsigned char CLIENTES = 1, DE_UN_CLIENTE = 2, PIXMAPS_DE_UN_CLIENTE = 3;
constexpr std::size_t CABEZA = 32;  // bytes of every answer, before what is added

// One connection, numbers in this machine's order.
class Enlace {
public:
    explicit Enlace(const std::string& numero) {
        sockaddr_un donde{};
        donde.sun_family = AF_UNIX;
        const std::string ruta = "/tmp/.X11-unix/X" + numero;
        ruta.copy(donde.sun_path, sizeof donde.sun_path - 1);
        s_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        bien_ = connect(s_, reinterpret_cast<const sockaddr*>(&donde), sizeof donde) == 0;
        if (bien_) Saluda();
    }
    ~Enlace() { close(s_); }
    Enlace(const Enlace&) = delete;
    Enlace& operator=(const Enlace&) = delete;

    bool Bien() const { return bien_; }
    std::uint32_t Mio() const { return mio_; }

    // A request of four-byte numbers behind its first four bytes; the whole answer.
    Bytes Pide(unsigned char mayor, unsigned char menor, const std::vector<std::uint32_t>& datos) {
        Bytes b{mayor, menor, 0, 0};
        const auto largo = static_cast<std::uint16_t>(1 + datos.size());
        std::memcpy(b.data() + 2, &largo, 2);
        b.resize(4 + 4 * datos.size());
        if (!datos.empty()) std::memcpy(b.data() + 4, datos.data(), 4 * datos.size());
        return Manda(b);
    }
    Bytes BuscaExtension(const std::string& nombre) {
        Bytes b(8 + (nombre.size() + 3) / 4 * 4);
        b[0] = QUERY_EXTENSION;
        b[2] = static_cast<unsigned char>(b.size() / 4);
        b[4] = static_cast<unsigned char>(nombre.size());
        std::memcpy(b.data() + 8, nombre.data(), nombre.size());
        return Manda(b);
    }
    static std::uint32_t Largo(const Bytes& b, std::size_t desde) {
        std::uint32_t n = 0;
        if (desde + 4 <= b.size()) std::memcpy(&n, b.data() + desde, 4);
        return n;
    }

private:
    void Saluda() {
        constexpr unsigned char saludo[12] = {'l', 0, 11};
        bien_ = write(s_, saludo, sizeof saludo) == sizeof saludo;
        Bytes b = Lee(8);
        if (!bien_ || b[0] != 1) {
            bien_ = false;
            return;
        }
        std::uint16_t mas = 0;
        std::memcpy(&mas, b.data() + 6, 2);
        b = Lee(std::size_t{4} * mas);
        mio_ = Largo(b, 4);
    }
    Bytes Manda(const Bytes& b) {
        bien_ = bien_ && write(s_, b.data(), b.size()) == static_cast<ssize_t>(b.size());
        Bytes r = Lee(CABEZA);
        if (r[0] != 1) {
            bien_ = false;
            return r;
        }
        const Bytes mas = Lee(std::size_t{4} * Largo(r, 4));
        r.insert(r.end(), mas.begin(), mas.end());
        return r;
    }
    Bytes Lee(std::size_t n) {
        Bytes b(n);
        for (std::size_t leidos = 0; bien_ && leidos < n;) {
            const ssize_t k = read(s_, b.data() + leidos, n - leidos);
            if (k <= 0) bien_ = false;
            if (k > 0) leidos += static_cast<std::size_t>(k);
        }
        return b;
    }

    int s_ = -1;
    bool bien_ = false;
    std::uint32_t mio_ = 0;
};

std::string NombreDe(Enlace& e, std::uint32_t atomo) {
    const Bytes b = e.Pide(GET_ATOM_NAME, 0, {atomo});
    std::uint16_t n = 0;
    std::memcpy(&n, b.data() + 8, 2);
    if (CABEZA + n > b.size()) return {};
    return {reinterpret_cast<const char*>(b.data()) + CABEZA, n};
}

void Suma(Enlace& e, unsigned char mayor, std::uint32_t cliente, RecursosX& r) {
    const Bytes clases = e.Pide(mayor, DE_UN_CLIENTE, {cliente});
    for (std::uint32_t i = 0; i < Enlace::Largo(clases, 8) && e.Bien(); ++i) {
        const std::size_t donde = CABEZA + std::size_t{8} * i;
        const std::string clase = NombreDe(e, Enlace::Largo(clases, donde));
        long& cuantos = clase == "WINDOW" ? r.ventanas : clase == "CURSOR" ? r.punteros : r.otros;
        cuantos += Enlace::Largo(clases, donde + 4);
    }
    r.pixmaps += Enlace::Largo(e.Pide(mayor, PIXMAPS_DE_UN_CLIENTE, {cliente}), 8);
}

}  // namespace

RecursosX PideRecursosX() {
    RecursosX r;
    const char* const pantalla = std::getenv("DISPLAY");
    if (!pantalla || *pantalla != ':') return r;
    Enlace e(std::string(pantalla + 1).substr(0, std::strcspn(pantalla + 1, ".")));
    if (!e.Bien()) return r;
    const Bytes extension = e.BuscaExtension("X-Resource");
    if (!e.Bien() || extension[8] == 0) return r;
    const unsigned char mayor = extension[9];
    const Bytes clientes = e.Pide(mayor, CLIENTES, {});
    for (std::uint32_t i = 0; i < Enlace::Largo(clientes, 8) && e.Bien(); ++i) {
        const std::uint32_t base = Enlace::Largo(clientes, CABEZA + std::size_t{8} * i);
        if (base != e.Mio()) Suma(e, mayor, base, r);
    }
    return r;
}

}  // namespace tessario
