#include "platform/Letras.h"

#include <cassert>

namespace tessario {

namespace {
Letras* enUso = nullptr;
}

Letras& LetrasEnUso() {
    assert(enUso && "PonSistema comes first");
    return *enUso;
}

void PonLetras(Letras* letras) {
    enUso = letras;
}

}  // namespace tessario
