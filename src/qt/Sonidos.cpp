#include "qt/Sonidos.h"

#include <SDL.h>

#include <QFile>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

namespace tessario {

namespace {

constexpr int FRECUENCIA = 44100;
constexpr int CANALES = 2;
constexpr int BYTES_SEGUNDO = FRECUENCIA * CANALES * 2;
constexpr Uint16 TROZO = 1024;  // frames that the device takes at a time
constexpr i32 TROZO_MS = TROZO * 1000 / FRECUENCIA + 1;
constexpr i32 DEMORA_MAXIMA_MS = 300;  // a device this late is taken for dead

}  // namespace

struct Sonidos::Estado {
    std::mutex cerrojo;  // guards the passage from starting to ready, or to closing
    std::atomic<bool> listo{false};
    std::atomic<SDL_AudioDeviceID> aparato{0};
    bool cerrando = false;
};

namespace {

// The library's audio part is one for the whole process: starts and ends go one after the other.
std::mutex& Turno() {
    static std::mutex turno;
    return turno;
}

SDL_AudioDeviceID AbreAparato() {
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

}  // namespace

Sonidos::Sonidos() : estado_(std::make_shared<Estado>()) {
    std::thread([e = estado_] {
        const std::lock_guard turno(Turno());
        const SDL_AudioDeviceID a = AbreAparato();
        const std::lock_guard paso(e->cerrojo);
        if (e->cerrando) {
            CierraAparato(a);
            return;
        }
        e->aparato = a;
        e->listo = true;
    }).detach();
}

Sonidos::~Sonidos() {
    {
        // A start that is still under way, or hangs, is left behind and cleans up after itself.
        const std::lock_guard paso(estado_->cerrojo);
        estado_->cerrando = true;
        if (!estado_->listo) return;
    }
    const std::lock_guard turno(Turno());
    CierraAparato(estado_->aparato);
}

bool Sonidos::Dispuesto(i32 milisegundos) const {
    for (i32 i = 0; i < milisegundos && !estado_->listo; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return estado_->listo;
}

bool Sonidos::HayAparato() const {
    return estado_->listo && estado_->aparato != 0;
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
    if (!HayAparato()) return;
    const std::vector<u8>& m = Muestras(id);
    if (m.empty()) return;
    const SDL_AudioDeviceID a = estado_->aparato;
    SDL_ClearQueuedAudio(a);
    if (SDL_QueueAudio(a, m.data(), static_cast<Uint32>(m.size())) != 0 || asincrono) return;
    const auto tope = steady_clock::now() + milliseconds(Duracion(id) + DEMORA_MAXIMA_MS);
    while (SDL_GetQueuedAudioSize(a) > 0 && steady_clock::now() < tope)
        std::this_thread::sleep_for(milliseconds(2));
    // What the device has taken last is still to be heard.
    if (steady_clock::now() < tope) std::this_thread::sleep_for(milliseconds(TROZO_MS));
}

}  // namespace tessario
