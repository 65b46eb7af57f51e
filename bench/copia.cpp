// SPDX-License-Identifier: GPL-3.0-or-later
// The safety copy of a usual game: what the player waits for, as a part of the time that it may
// take, and the whole of it, until the record is safe on the disk, against a plain write of as many
// bytes that waits for the disk likewise.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

#include "apoyo/PlataformaPrueba.h"
#include "bench/Razon.h"
#include "core/PuzzGbl.h"
#include "records/Archivo.h"
#include "session/CopiaSeguridad.h"
#include "session/Montaje.h"
#include "start/Juegos.h"

namespace tessario::bench {

namespace {

constexpr double PLAZO = 0.005;  // seconds that the player may wait for it
constexpr i16 POR_LADO = 10, PIEZAS = POR_LADO * POR_LADO, MOVIMIENTOS = 400;
constexpr i16 CELDA_ANCHO = 64, CELDA_ALTO = 48;
constexpr int REPETICIONES = 9;      // the fastest counts, the rest is the machine
constexpr double VECES_A_SECAS = 4;  // of the plain write: bound of the whole

std::string Carpeta() {
    const auto carpeta = std::filesystem::temp_directory_path() / "tessario-bench-copia";
    std::filesystem::create_directories(carpeta);
    return carpeta.string() + "/";
}

// A hundred pieces of a jigsaw, half of them moved about four times each.
void PonPartida() {
    static PlataformaPrueba plataforma;
    PonSistema(&plataforma);
    InstalaJuegos();
    Gbl = Bloque{};
    Gbl.JuegoActual = JuegoMoviles;
    Gbl.CarpetaArchivo = Carpeta();
    Gbl.PiezasPorLado = POR_LADO;
    Gbl.PiezasPorCelda = 1;
    Gbl.NumPiezas = PIEZAS;
    Gbl.AnchoImagen = CELDA_ANCHO * POR_LADO;
    Gbl.AltoImagen = CELDA_ALTO * POR_LADO;
    Gbl.Piezas.Redimensiona(PIEZAS);
    Gbl.OrdenPiezas.Redimensiona(PIEZAS);
    for (i16 i = 1; i <= PIEZAS; ++i) {
        Pieza& p = Gbl.Piezas[i];
        p.XBien = static_cast<i16>((i - 1) % POR_LADO * CELDA_ANCHO);
        p.YBien = static_cast<i16>((i - 1) / POR_LADO * CELDA_ALTO);
        p.X = static_cast<i16>(p.XBien + 300);
        p.Y = p.YBien;
        Gbl.OrdenPiezas[i] = i;
    }
    Gbl.Movimientos.Redimensiona(MOVIMIENTOS);
    for (i16 i = 1; i <= MOVIMIENTOS; ++i) {
        Movimiento& m = Gbl.Movimientos[i];
        m.Pieza = static_cast<i16>(1 + i % (PIEZAS / 2));
        m.XAntes = i;
        m.XDespues = static_cast<i16>(i + 7);
        m.YAntes = m.YDespues = static_cast<i16>(2 * i);
    }
    Gbl.NumMovimientos = Gbl.FinMovimientos = MOVIMIENTOS;
}

double Segundos(const auto& f) {
    const auto inicio = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
}

bool EscribeASecas(const std::string& ruta, const std::string& bytes) {
    const int fd = open(ruta.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    const bool bien = write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
                      fsync(fd) == 0;
    close(fd);
    return bien;
}

void MideCopia(benchmark::State& estado, bool entera) {
    PonPartida();
    const std::string record = EscribePuzzle(), otra = Carpeta() + "a secas";
    double copia = 1e9, seca = 1e9;
    for (auto _ : estado) {
        for (int i = 0; i < REPETICIONES; ++i) {
            std::filesystem::remove(FicheroDeCopia());
            copia = std::min(copia, Segundos([&] {
                                 CopiaAntesDeRepartir();
                                 if (entera) EsperaCopia();
                             }));
            EsperaCopia();
            std::filesystem::remove(otra);
            seca = std::min(seca, Segundos([&] { EscribeASecas(otra, record); }));
        }
        estado.SetIterationTime(copia);
    }
    std::string escrito;
    if (LeeFichero(FicheroDeCopia(), escrito) != 0 || escrito != record)
        estado.SkipWithError("the copy is not the record");
    std::filesystem::remove_all(Carpeta());
    const double referencia = entera ? seca : PLAZO;
    estado.counters[RAZON] = copia / referencia;
    estado.counters[LIMITE] = entera ? VECES_A_SECAS : 1;
    estado.counters[REFERENCIA] = referencia * 1e9;
}

bool RegistraTodo() {
    for (const bool entera : {false, true})
        benchmark::RegisterBenchmark(entera ? "copia/on_the_disk" : "copia/what_is_waited_for",
                                     [entera](benchmark::State& e) { MideCopia(e, entera); })
            ->UseManualTime()
            ->Iterations(1);
    return true;
}

[[maybe_unused]] const bool registrado = RegistraTodo();

}  // namespace

}  // namespace tessario::bench
