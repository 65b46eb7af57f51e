// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Archivo.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/Errores.h"
#include "records/Texto.h"

namespace tessario {

namespace {

constexpr mode_t PERMISOS_NUEVO = 0666;  // before the process's mask

constexpr int ENLACES_MAXIMOS = 40;  // one after the other, as the system has it
// Waiting for another program's line: two seconds.
constexpr int INTENTOS_RESERVA = 200;
constexpr useconds_t DESCANSO_RESERVA_US = 10'000;

// A file under way to another's place: this and six letters or digits of the system's choice.
constexpr std::string_view TEMPORAL = ".tsr", AL_AZAR = "XXXXXX";

// An open file, closed at the end of its life.
class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() { Cierra(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    bool Vale() const { return fd_ >= 0; }
    int Numero() const { return fd_; }
    bool Cierra() { return fd_ < 0 || close(std::exchange(fd_, -1)) == 0; }

private:
    int fd_;
};

i16 NumeroDe(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return ERROR_LLENO;
        case ENOENT:
        case ENOTDIR:
            return ERROR_RUTA;
        case EIO:
            return ERROR_ES;
        case ENAMETOOLONG:
        case EINVAL:
        case ELOOP:
            return ERROR_NOMBRE;
        default:
            return ERROR_ACCESO;
    }
}

std::string CarpetaDe(const std::string& ruta) {
    const std::size_t barra = ruta.rfind('/');
    return barra == std::string::npos ? "./" : ruta.substr(0, barra + 1);
}

bool EsCarpeta(const std::string& ruta) {
    struct stat datos {};
    return stat(ruta.c_str(), &datos) == 0 && S_ISDIR(datos.st_mode);
}

// The same file whatever the case of its name; the folder is taken as it is.
std::string SinCaja(const std::string& ruta) {
    struct stat datos {};
    if (lstat(ruta.c_str(), &datos) == 0) return ruta;
    return EsCarpeta(CarpetaDe(ruta)) ? BuscaRuta(ruta) : ruta;
}

// A missing file in a folder that exists is another error than a missing folder.
i16 NumeroDeApertura(int error, const std::string& ruta) {
    if (error == ENOENT && EsCarpeta(CarpetaDe(ruta))) return ERROR_FICHERO;
    return NumeroDe(error);
}

i16 LeeTodo(int fd, std::string& bytes, std::size_t maximo) {
    char trozo[65536];
    for (;;) {
        const ssize_t n = read(fd, trozo, sizeof trozo);
        if (n == 0) return 0;
        if (n < 0) {
            if (errno == EINTR) continue;
            return NumeroDe(errno);
        }
        if (bytes.size() + static_cast<std::size_t>(n) > maximo) return ERROR_MEMORIA;
        bytes.append(trozo, static_cast<std::size_t>(n));
    }
}

i16 EscribeTodo(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR) continue;
            return NumeroDe(errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

// A device or a pipe cannot be replaced: it is written to.
i16 EscribeEnSitio(const std::string& ruta, std::string_view bytes) {
    Descriptor d(open(ruta.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!d.Vale()) return NumeroDe(errno);
    const i16 error = EscribeTodo(d.Numero(), bytes);
    return error == 0 && !d.Cierra() ? NumeroDe(errno) : error;
}

mode_t PermisosNuevos() {
    const mode_t mascara = umask(0);
    umask(mascara);
    return PERMISOS_NUEVO & ~mascara;
}

// Fills the temporary file and sees it onto the disk.
i16 LlenaTemporal(Descriptor& d, std::string_view bytes, const struct stat* anterior) {
    const mode_t permisos = anterior ? (anterior->st_mode & 07777U) : PermisosNuevos();
    // The owner can only be kept where the system allows it; the file is then ours.
    if (anterior && fchown(d.Numero(), anterior->st_uid, anterior->st_gid) != 0) errno = 0;
    if (fchmod(d.Numero(), permisos) != 0) return NumeroDe(errno);
    if (const i16 error = EscribeTodo(d.Numero(), bytes)) return error;
    if (fsync(d.Numero()) != 0) return NumeroDe(errno);
    return d.Cierra() ? i16{0} : NumeroDe(errno);
}

void AseguraCarpeta(const std::string& carpeta) {
    Descriptor d(open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (d.Vale()) fsync(d.Numero());
}

i16 Reemplaza(const std::string& ruta, std::string_view bytes, const struct stat* anterior) {
    const std::string carpeta = CarpetaDe(ruta);
    std::string temporal = carpeta;
    temporal.append(TEMPORAL).append(AL_AZAR);
    Descriptor d(mkostemp(temporal.data(), O_CLOEXEC));
    if (!d.Vale()) return NumeroDe(errno);
    i16 error = LlenaTemporal(d, bytes, anterior);
    if (error == 0 && rename(temporal.c_str(), ruta.c_str()) != 0) error = NumeroDe(errno);
    if (error != 0)
        unlink(temporal.c_str());
    else
        AseguraCarpeta(carpeta);
    return error;
}

bool EsTemporal(const std::filesystem::path& ruta) {
    const std::string nombre = ruta.filename();
    struct stat datos {};
    return nombre.size() == TEMPORAL.size() + AL_AZAR.size() && nombre.starts_with(TEMPORAL) &&
           lstat(ruta.c_str(), &datos) == 0 && S_ISREG(datos.st_mode) && datos.st_uid == geteuid();
}

// The line, after the end of a last line that has none.
std::string LineaEntera(int fd, off_t largo, std::string_view linea) {
    std::string bytes;
    char ultimo = '\n';
    if (largo > 0 && pread(fd, &ultimo, 1, largo - 1) == 1 && ultimo != '\n') bytes = "\r\n";
    return bytes.append(linea).append("\r\n");
}

// Where a symbolic link leads, so that the link stays and its file is replaced, or made anew. A
// link that leads in a circle is left to whoever opens it.
std::string SinEnlaces(std::string ruta) {
    std::error_code e;
    for (int i = 0; i < ENLACES_MAXIMOS; ++i) {
        const std::filesystem::path destino = std::filesystem::read_symlink(ruta, e);
        if (e) return ruta;
        ruta = (std::filesystem::path(CarpetaDe(ruta)) / destino).string();
    }
    return ruta;
}

// The file for ourselves alone, until it is closed. Whoever holds it for long hangs, or its file
// system does: one line more does no harm then, for it is written at once.
bool Reserva(int fd) {
    for (int i = 0; i < INTENTOS_RESERVA; ++i) {
        if (flock(fd, LOCK_EX | LOCK_NB) == 0) return true;
        if (errno != EWOULDBLOCK && errno != EINTR) return false;
        usleep(DESCANSO_RESERVA_US);
    }
    return false;
}

}  // namespace

i16 LeeFichero(const std::string& ruta, std::string& bytes, std::size_t maximo) {
    bytes.clear();
    if (ruta.find('\0') != std::string::npos) return ERROR_NOMBRE;
    const std::string hallada = SinCaja(ruta);
    Descriptor d(open(hallada.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!d.Vale()) return NumeroDeApertura(errno, hallada);
    struct stat datos {};
    if (fstat(d.Numero(), &datos) != 0) return NumeroDe(errno);
    if (!S_ISREG(datos.st_mode)) return ERROR_ACCESO;
    if (datos.st_size > 0 && static_cast<std::size_t>(datos.st_size) > maximo) return ERROR_MEMORIA;
    if (const i16 error = LeeTodo(d.Numero(), bytes, maximo)) {
        bytes.clear();
        return error;
    }
    return 0;
}

i16 EscribeFichero(const std::string& ruta, std::string_view bytes) {
    if (ruta.empty() || ruta.find('\0') != std::string::npos) return ERROR_NOMBRE;
    const std::string destino = SinEnlaces(SinCaja(ruta));
    struct stat anterior {};
    if (stat(destino.c_str(), &anterior) != 0) {
        if (errno != ENOENT) return NumeroDe(errno);
        return Reemplaza(destino, bytes, nullptr);
    }
    if (S_ISDIR(anterior.st_mode)) return ERROR_ACCESO;
    if (!S_ISREG(anterior.st_mode)) return EscribeEnSitio(destino, bytes);
    if (access(destino.c_str(), W_OK) != 0) return NumeroDe(errno);
    return Reemplaza(destino, bytes, &anterior);
}

i16 AnadeLinea(const std::string& ruta, std::string_view linea) {
    if (ruta.empty() || ruta.find('\0') != std::string::npos) return ERROR_NOMBRE;
    const std::string destino = SinCaja(ruta);
    Descriptor d(open(destino.c_str(),
                      O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY,
                      PERMISOS_NUEVO));
    if (!d.Vale()) return NumeroDe(errno);
    struct stat datos {};
    if (fstat(d.Numero(), &datos) != 0) return NumeroDe(errno);
    if (!S_ISREG(datos.st_mode)) return ERROR_ACCESO;
    const bool nuestro = Reserva(d.Numero());
    if (fstat(d.Numero(), &datos) != 0) return NumeroDe(errno);
    i16 error = EscribeTodo(d.Numero(), LineaEntera(d.Numero(), datos.st_size, linea));
    if (error == 0 && fsync(d.Numero()) != 0) error = NumeroDe(errno);
    // Half a line must not stay.
    if (error != 0 && nuestro && ftruncate(d.Numero(), datos.st_size) != 0) return NumeroDe(errno);
    return error;
}

void AseguraCarpetaDe(const std::string& ruta) {
    std::error_code e;
    std::filesystem::create_directories(CarpetaDe(ruta), e);
}

bool SeAbre(const std::string& ruta) {
    if (ruta.find('\0') != std::string::npos) return false;
    struct stat datos {};
    return stat(ruta.c_str(), &datos) == 0 && S_ISREG(datos.st_mode) &&
           access(ruta.c_str(), R_OK) == 0;
}

i16 BorraFichero(const std::string& ruta) {
    if (ruta.find('\0') != std::string::npos) return ERROR_NOMBRE;
    return unlink(ruta.c_str()) == 0 ? i16{0} : NumeroDe(errno);
}

void BorraTemporales(const std::string& carpeta) {
    std::error_code e;
    std::vector<std::string> restos;
    for (std::filesystem::directory_iterator i(carpeta, e), fin; !e && i != fin; i.increment(e))
        if (EsTemporal(i->path())) restos.push_back(i->path());
    for (const std::string& resto : restos) unlink(resto.c_str());
}

}  // namespace tessario
