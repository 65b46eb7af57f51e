// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Sonidos.h"

#include <SDL.h>
#include <dlfcn.h>

#include <QFile>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "qt/Senales.h"

namespace tessario {

namespace {

constexpr int FRECUENCIA = 44100;
constexpr int CANALES = 2;
constexpr int BYTES_SEGUNDO = FRECUENCIA * CANALES * 2;
constexpr Uint16 TROZO = 1024;  // frames that the device takes at a time
constexpr i32 TROZO_MS = TROZO * 1000 / FRECUENCIA + 1;
constexpr i32 DEMORA_MAXIMA_MS = 300;   // a device this late is taken for dead
constexpr i32 CIERRE_MAXIMO_MS = 1500;  // at the end of the program
constexpr i32 SILENCIO_MS = 4000;       // of silence before the device is given back
constexpr i32 REINTENTO_MS = 30000;     // before a device that could not be opened is tried again

}  // namespace

struct Sonidos::Estado {
    enum Fase { Cerrado, Abriendo, Abierto, SinAparato };
    std::mutex cerrojo;  // guards all fields; `fase` may be read without it
    std::atomic<Fase> fase{Cerrado};
    SDL_AudioDeviceID aparato = 0;
    bool terminado = false;                               // the owner is gone
    std::vector<u8> pendiente;                            // to be played when the device is open
    std::chrono::steady_clock::time_point desde = {};     // of `pendiente`, or of the failure
    std::chrono::steady_clock::time_point abriendo = {};  // when its opening was begun
};

namespace {

// The library's audio part is one for the whole process: starts and ends go one after the other.
std::mutex& Turno() {
    static std::mutex turno;
    return turno;
}

// The machine's sound library reports on the terminal what it tries in vain; nobody reads it there.
void Calla(const char*, int, const char*, int, const char*, ...) {}

void CallaBiblioteca() {
    using Pon = int (*)(decltype(&Calla));
    if (void* const pon = dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler"))
        reinterpret_cast<Pon>(pon)(Calla);
}

SDL_AudioDeviceID AbreAparato() {
    CallaBiblioteca();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Tessario");
    if (SDL_AudioInit(nullptr) != 0) return 0;
    SDL_AudioSpec pedido{};
    pedido.freq = FRECUENCIA;
    pedido.format = AUDIO_S16SYS;
    pedido.channels = CANALES;
    pedido.samples = TROZO;
    const SDL_AudioDeviceID a = SDL_OpenAudioDevice(nullptr, 0, &pedido, nullptr, 0);
    if (a) SDL_PauseAudioDevice(a, 0);
    return a;
}

void CierraAparato(SDL_AudioDeviceID a) {
    if (a) SDL_CloseAudioDevice(a);
    SDL_AudioQuit();
}

// Does it beside everything else. False: the system gives no thread for it.
template <class F>
bool Aparte(F hace) {
    try {
        std::thread(std::move(hace)).detach();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

// A device that has stopped taking sound may never let itself be closed: it is left behind.
void CierraAparte(SDL_AudioDeviceID a, i32 milisegundos) {
    const auto hecho = std::make_shared<std::promise<void>>();
    const bool va = Aparte([a, hecho] {
        const std::lock_guard turno(Turno());
        CierraAparato(a);
        hecho->set_value();
    });
    if (va) hecho->get_future().wait_for(std::chrono::milliseconds(milisegundos));
}

}  // namespace

Sonidos::Sonidos() : estado_(std::make_shared<Estado>()) {
    silencio_.setSingleShot(true);
    silencio_.setInterval(SILENCIO_MS);
    QObject::connect(&silencio_, &QTimer::timeout, &silencio_, [this] { Descansa(); });
}

Sonidos::~Sonidos() {
    SDL_AudioDeviceID a = 0;
    {
        // An opening that is still under way, or hangs, is left behind and cleans up after itself.
        const std::lock_guard paso(estado_->cerrojo);
        estado_->terminado = true;
        if (estado_->fase != Estado::Abierto) return;
        a = estado_->aparato;
    }
    CierraAparte(a, CIERRE_MAXIMO_MS);
}

void Sonidos::Despierta() {
    using namespace std::chrono;
    {
        const std::lock_guard paso(estado_->cerrojo);
        const bool otraVez = estado_->fase == Estado::SinAparato &&
                             steady_clock::now() - estado_->desde > milliseconds(REINTENTO_MS);
        if (estado_->fase != Estado::Cerrado && !otraVez) return;
        estado_->fase = Estado::Abriendo;
        estado_->abriendo = steady_clock::now();
    }
    const bool va = Aparte([e = estado_] {
        const std::lock_guard turno(Turno());
        const SDL_AudioDeviceID a = AbreAparato();
        const std::lock_guard paso(e->cerrojo);
        if (e->terminado || a == 0) {
            CierraAparato(a);
            e->desde = steady_clock::now();
            e->fase = Estado::SinAparato;
            return;
        }
        if (steady_clock::now() - e->desde < milliseconds(DEMORA_MAXIMA_MS))
            SDL_QueueAudio(a, e->pendiente.data(), static_cast<Uint32>(e->pendiente.size()));
        e->pendiente.clear();
        e->aparato = a;
        e->fase = Estado::Abierto;
    });
    if (va) return;
    const std::lock_guard paso(estado_->cerrojo);
    estado_->desde = steady_clock::now();
    estado_->fase = Estado::SinAparato;
}

void Sonidos::Descansa() {
    SDL_AudioDeviceID a = 0;
    {
        const std::lock_guard paso(estado_->cerrojo);
        if (estado_->fase != Estado::Abierto) return;
        std::swap(a, estado_->aparato);
        estado_->fase = Estado::Cerrado;
    }
    CierraAparte(a, 0);
}

bool Sonidos::Dispuesto(i32 milisegundos) const {
    for (i32 i = 0; i < milisegundos && estado_->fase == Estado::Abriendo; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return estado_->fase != Estado::Abriendo;
}

bool Sonidos::HayAparato() const {
    return estado_->fase == Estado::Abierto;
}

const std::vector<u8>& Sonidos::Muestras(i16 id) {
    const auto i = muestras_.find(id);
    if (i != muestras_.end()) return i->second;
    std::vector<u8>& destino = muestras_[id];
    QFile f(QStringLiteral(":/sonidos/%1.wav").arg(id));
    if (!f.open(QIODevice::ReadOnly)) return destino;
    const QByteArray bytes = f.readAll();
    SDL_AudioSpec formato{};
    Uint8* datos = nullptr;
    Uint32 largo = 0;
    SDL_RWops* const rw = SDL_RWFromConstMem(bytes.constData(), static_cast<int>(bytes.size()));
    if (!SDL_LoadWAV_RW(rw, 1, &formato, &datos, &largo)) return destino;
    SDL_AudioStream* const s = SDL_NewAudioStream(formato.format, formato.channels, formato.freq,
                                                  AUDIO_S16SYS, CANALES, FRECUENCIA);
    if (s && SDL_AudioStreamPut(s, datos, static_cast<int>(largo)) == 0 &&
        SDL_AudioStreamFlush(s) == 0) {
        destino.resize(static_cast<std::size_t>(std::max(0, SDL_AudioStreamAvailable(s))));
        const int n = SDL_AudioStreamGet(s, destino.data(), static_cast<int>(destino.size()));
        destino.resize(static_cast<std::size_t>(std::max(0, n)));
    }
    if (s) SDL_FreeAudioStream(s);
    SDL_FreeWAV(datos);
    return destino;
}

i32 Sonidos::Duracion(i16 id) {
    return static_cast<i32>(Muestras(id).size() * 1000 / BYTES_SEGUNDO);
}

void Sonidos::Suena(i16 id, bool asincrono) {
    using namespace std::chrono;
    const std::vector<u8>& m = Muestras(id);
    if (m.empty()) return;
    silencio_.start(SILENCIO_MS + Duracion(id));
    Despierta();
    SDL_AudioDeviceID a = 0;
    steady_clock::time_point abriendo;
    {
        const std::lock_guard paso(estado_->cerrojo);
        abriendo = estado_->abriendo;
        if (estado_->fase == Estado::Abriendo) {
            estado_->pendiente = m;
            estado_->desde = steady_clock::now();
        } else if (estado_->fase == Estado::Abierto) {
            a = estado_->aparato;
            SDL_ClearQueuedAudio(a);
            SDL_QueueAudio(a, m.data(), static_cast<Uint32>(m.size()));
        }
    }
    if (asincrono) return;
    const auto tope = steady_clock::now() + milliseconds(Duracion(id) + DEMORA_MAXIMA_MS);
    // One that waits for the device is waited for with it, but no longer than a device may take.
    if (a == 0) {
        const auto falta = milliseconds(DEMORA_MAXIMA_MS) -
                           duration_cast<milliseconds>(steady_clock::now() - abriendo);
        const auto queda = static_cast<i32>(std::max<long long>(0, falta.count()));
        if (!Dispuesto(queda) || !HayAparato()) return;
        a = estado_->aparato;
    }
    const auto sigue = [&] { return steady_clock::now() < tope && !Senales::Pendiente(); };
    while (SDL_GetQueuedAudioSize(a) > 0 && sigue()) Senales::Duerme(2);
    // What the device has taken last is still to be heard.
    if (sigue()) Senales::Duerme(TROZO_MS);
}

}  // namespace tessario
