#include "core/Avisos.h"

#include "core/Servicios.h"

namespace tessario {

namespace aviso {

namespace {
constexpr std::string_view TITULO_MODO = "Cambio de resolución de pantalla";
constexpr std::string_view TITULO_CARGA = "Error en la carga de datos iniciales";
}  // namespace

const Aviso RESOLUCION{
    "Resolución de pantalla",
    "Este  programa  se  ha  diseñado  para  funcionar  con  una resolución mínima de pantalla de "
    "800x600 con profundidad de color de 16 bits o superior.  La resolución seleccionada "
    "actualmente es de (%1x%2).  Pulse  Aceptar  para cambiar  la  resolución  de  la  pantalla  "
    "a  800x600  o  Cancelar  para abandonar el programa.",
    6,
    2,
    1040,
    {"640", "480"}};

const Aviso MODO_NO_CAMBIA{TITULO_MODO, "No se puede cambiar la resolución de la pantalla.", 2, 1,
                           0};
const Aviso MODO_CAMBIADO{
    TITULO_MODO, "Se ha cambiado con éxito la resolución de la pantalla a 800x600.", 2, 1, 0};
const Aviso MODO_REINICIO{
    TITULO_MODO, "Necesita reiniciar el equipo para que los cambios tengan efecto.", 2, 1, 0};
const Aviso MODO_FALLIDO{TITULO_MODO,
                         "No se ha podido realizar el cambio de resolución de la pantalla. "
                         "Inténtelo de forma manual.",
                         2, 1, 0};

const Aviso BIENVENIDA{
    "TESSARIO  3.3",
    "Si   desea   consultar   una   descripción   general   de   este programa  para  conocer  "
    "rápidamente  su  funcionamiento, pulse el botón de Ayuda.",
    3, 1, 1020};

const Aviso SIN_CONFIGURACION{
    TITULO_CARGA,
    "No  se  encuentra  el  fichero de inicialización  TsR33.ini .  Se ha  procedido  a  crearlo  "
    "automáticamente  con  los  valores establecidos por defecto.",
    3, 1, 0};
const Aviso SIN_AJUSTES{
    TITULO_CARGA,
    "No se encuentra el archivo de inicialización %1. Se ha  procedido  a  crearlo "
    "automáticamente  con  los  valores establecidos por defecto.",
    3,
    1,
    0,
    {"/opt/tessario/TsR2133.ini"}};
const Aviso ERROR_CONFIGURACION{TITULO_CARGA, "IDC ERROR %1", 3, 1, 0, {"75"}};
const Aviso ERROR_AJUSTES{TITULO_CARGA, "CID ERROR %1", 3, 1, 0, {"75"}};

const Aviso IMAGEN_NO_VALIDA{"Imagen no válida",
                             "El  tamaño  de  la  imagen   que   está  intentando  cargar\r\n"
                             "( %1 x %2 pixels )  no está dentro de los límites permitidos:\r\n"
                             "\r\n"
                             "                 Entre  320  y  1.024  pixels de ancho\r\n"
                             "                 Entre  240  y  768  pixels de alto",
                             6,
                             1,
                             2115,
                             {"1100", "770"}};
const Aviso SIN_IMAGENES{
    "Imagen del puzzle",
    "No se ha encontrado en la carpeta  Imagenes  ninguna imagen que sirva de fondo para el "
    "puzzle.  Se va a mostrar una imagen vacía.",
    3, 1, 2115};

const Aviso SIN_SOLUCION{
    "Configuración sin solución",
    "Este puzzle no tiene solución con la configuración de piezas actual.  Se va  a  barajar "
    "automáticamente para  que  pueda tener solución.",
    3, 1, 3020};

}  // namespace aviso

std::span<const Aviso* const> Avisos() {
    static constexpr const Aviso* TODOS[] = {
        &aviso::RESOLUCION,        &aviso::MODO_NO_CAMBIA,   &aviso::MODO_CAMBIADO,
        &aviso::MODO_REINICIO,     &aviso::MODO_FALLIDO,     &aviso::BIENVENIDA,
        &aviso::SIN_CONFIGURACION, &aviso::SIN_AJUSTES,      &aviso::ERROR_CONFIGURACION,
        &aviso::ERROR_AJUSTES,     &aviso::IMAGEN_NO_VALIDA, &aviso::SIN_IMAGENES,
        &aviso::SIN_SOLUCION};
    return TODOS;
}

std::string TextoDe(const Aviso& a, std::initializer_list<std::string_view> valores) {
    std::string texto;
    for (std::size_t i = 0; i < a.texto.size(); ++i) {
        const char c = a.texto[i];
        if (c != '%' || i + 1 == a.texto.size()) {
            texto += c;
            continue;
        }
        const std::size_t n = static_cast<std::size_t>(a.texto[++i] - '1');
        if (n < valores.size()) texto += valores.begin()[n];
    }
    return texto;
}

void Avisa(const Aviso& a, std::initializer_list<std::string_view> valores) {
    Mensaje(std::string(a.titulo), TextoDe(a, valores), a.modo, a.botones, a.ayuda);
}

}  // namespace tessario
