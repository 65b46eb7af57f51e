// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Avisos.h"

#include "core/Fallos.h"
#include "core/Ventanas.h"

namespace tessario {

namespace aviso {

namespace {
constexpr std::string_view TITULO_MODO = "Cambio de resolución de pantalla";
constexpr std::string_view TITULO_HISTORICO = "Histórico de puzzles resueltos";
constexpr std::string_view TITULO_LECTURA = "Error leyendo el fichero histórico";
constexpr std::string_view TITULO_IMAGEN = "Imagen no válida";
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

const Aviso IMAGEN_NO_VALIDA{TITULO_IMAGEN,
                             "El  tamaño  de  la  imagen   que   está  intentando  cargar\r\n"
                             "( %1 x %2 pixels )  no está dentro de los límites permitidos:\r\n"
                             "\r\n"
                             "                 Entre  320  y  1.024  pixels de ancho\r\n"
                             "                 Entre  240  y  768  pixels de alto",
                             6,
                             1,
                             2115,
                             {"1100", "770"}};
const Aviso IMAGEN_RECHAZADA{TITULO_IMAGEN,
                             "La  imagen  que  acaba  de  seleccionar  ( %1 x %2 pixels)\r\n"
                             "no puede ser utilizada en Tessario.  Aunque se le aplique el máximo  "
                             " valor   del   Zoom   no  "
                             "entra  dentro  de  los  límites permitidos:\r\n"
                             "\r\n"
                             "                 Entre  320  y  1.024  pixels de ancho.\r\n"
                             "                 Entre  240  y  768  pixels de alto.\r\n"
                             "\r\n"
                             "Seleccione otra imagen que sirva de fondo para el puzzle.",
                             9,
                             1,
                             2115,
                             {"2000", "700"}};
const Aviso IMAGEN_ADAPTADA{"Imagen fuera de límites",
                            "El   tamaño   de   la   imagen   que   acaba  de   seleccionar\r\n"
                            " ( %1 x %2 pixels ) no está dentro de los límites permitidos:\r\n"
                            "\r\n"
                            "                 Entre  320  y  1.024  pixels de ancho.\r\n"
                            "                 Entre  240  y  768  pixels de alto.\r\n"
                            "\r\n"
                            "Se ha modificado el Zoom para adaptar la imagen a dichos límites.",
                            8,
                            1,
                            2115,
                            {"2000", "1000"}};
const Aviso ZOOM_EXCESIVO{"Imagen fuera de límites",
                          "Si  se  aplica este zoom  a  la  imagen  que  ha  seleccionado\r\n"
                          "se superan los límites permitidos:\r\n"
                          "\r\n"
                          "                 Entre  320  y  1.024  pixels de ancho\r\n"
                          "                 Entre  240  y  768  pixels de alto",
                          6, 1, 2115};
const Aviso NO_ES_IMAGEN{TITULO_IMAGEN,
                         "Lo que ha soltado o pegado no es una imagen que pueda servir de fondo "
                         "para el puzzle.",
                         2, 1, 2115};
const Aviso IMAGEN_SIN_USO{TITULO_IMAGEN,
                           "El juego actual no utiliza imágenes.  Para usar ésta como fondo del "
                           "puzzle,  elija antes otro juego.",
                           2, 1, 2112};
const Aviso IMAGEN_SIN_GUARDAR{TITULO_IMAGEN,
                               "No se ha podido guardar la imagen en el disco,  por lo que no se "
                               "puede utilizar.",
                               2, 1, 2115};

const Aviso CAMBIO_JUEGO{
    "Lista 'JUEGO ACTUAL'",
    "Cuando se modifica  el  valor  de esta lista,  finaliza  el  juego actual  y  se  inicia la "
    "modalidad de juego  seleccionada.  Si pulsa  el botón Aceptar comenzará el nuevo juego.  Si "
    "pulsa el botón Cancelar no se modificará ningún valor y continuará el juego actual.",
    5, 2, 2112};
const Aviso CAMBIO_PARAMETROS{
    "Parámetros del puzzle",
    "Ha modificado algún parámetro  que  afecta  a  la resolución del  puzzle actual,  por lo  que "
    " "
    "finalizará  y  se  barajarán  las piezas. Pulse el botón  Aceptar  para comenzar nuevamente "
    "el puzzle. Si pulsa el botón Cancelar no se modificará ningún parámetro y podrá continuar "
    "resolviendo el puzzle actual.",
    5, 2, 0};
const Aviso CAMBIO_MODELO{
    "Nuevo modelo de Tangram",
    "Ha cambiado el modelo de Tangram, por lo que finalizará la resolución  del  modelo actual  y  "
    "se  barajarán las piezas.  Si pulsa el botón Aceptar comenzará el nuevo modelo. Si pulsa el "
    "botón Cancelar no se modificará ningún parámetro y podrá continuar resolviendo el puzzle "
    "actual.",
    5, 2, 2117};
const Aviso BORRA_MODELO{
    "Borrar modelo de Tangram",
    "Va a borrar el modelo de Tangram con el nombre:\r\n"
    "\r\n"
    "%1\r\n"
    "\r\n"
    "Pulse el botón   Aceptar   para borrar este modelo.   Si pulsa el botón  Cancelar  no se "
    "borrará ninguno.",
    6,
    2,
    4010,
    {"Barco de vela con bandera"}};

const Aviso IMAGEN_PERDIDA{
    "Imagen del puzzle",
    "No se encuentra o no se puede leer la imagen  %1 .  Se va a crear un puzzle nuevo con los "
    "valores establecidos por defecto.",
    3,
    1,
    2115,
    {"Constelaciones.bmp"}};

const Aviso SIN_SOLUCION{
    "Configuración sin solución",
    "Este puzzle no tiene solución con la configuración de piezas actual.  Se va  a  barajar "
    "automáticamente para  que  pueda tener solución.",
    3, 1, 3020};

const Aviso YA_RESUELTO{
    "Puzzle resuelto",
    "Este puzzle ya se ha resuelto. Si desea deshacerlo y volver atrás, utilice la "
    "Grabadora de movimientos.",
    2, 1, 2200};
const Aviso RESUELTO{"TESSARIO", "Ha conseguido resolver el puzzle", 1, 1, 0};
const Aviso AL_HISTORICO{TITULO_HISTORICO, "¿Se actualiza el Histórico de puzzles?", 1, 2, 2161};
const Aviso ERROR_HISTORICO{TITULO_HISTORICO, "HIS ERROR %1", 1, 1, 0, {"75"}};

// Of the window that shows it.
const Aviso HISTORICO_AUSENTE{TITULO_LECTURA,
                              "No se encuentra el fichero Histórico. Se creará de nuevo la "
                              "próxima vez que termine de resolver un puzzle.",
                              2, 1, 0};
const Aviso HISTORICO_SIN_RUTA{TITULO_LECTURA, "HIS ERROR 76: No existe el fichero Histórico", 1, 1,
                               0};
const Aviso HISTORICO_ILEGIBLE{TITULO_LECTURA, "HIS ERROR %1", 1, 1, 0, {"75"}};

const Aviso MEZCLA_TANGRAM{
    "Barajar las piezas del Tangram",
    "Si pulsa este botón cuando está resolviendo un modelo, se despejará  la  mesa  de  "
    "juego  para  que  pueda  crear  sus propios  diseños,   por  lo   que  finalizará  "
    "la  resolución  del modelo actual  y  se  mezclarán las piezas.   Pulse  el  botón "
    "Aceptar para mezclar las piezas. Si pulsa el botón Cancelar podrá continuar "
    "resolviendo el modelo actual.",
    6, 2, 2180};
const Aviso ORDEN_A_MANO{
    "Ordenar las piezas manualmente",
    "Si pulsa este botón  para  colocar manualmente  las  piezas, cuando finalize  ese  proceso "
    "comenzará  la  resolución  del puzzle  con  las  piezas  en  la  posición  que  Usted  "
    "prefiera. Pulse el botón Aceptar para colocar las piezas como desee y  comenzar  un  nuevo  "
    "puzzle.  Si  pulsa  el  botón  Cancelar podrá continuar resolviendo el puzzle actual.",
    6, 2, 2184};
const Aviso ORDEN_INSOLUBLE{
    "Configuración sin solución",
    "Este puzzle no tiene solución con la configuración de piezas actual.  Pulse el botón Aceptar "
    "para que el programa baraje automáticamente  las  piezas  y  obtenga  una  configuración "
    "soluble.  Si pulsa el botón Cancelar podrá seguir ordenando las piezas hasta obtener  una  "
    "configuración  que  permita su solución.",
    6, 2, 3020};

const Aviso SALIR{"Salir de TESSARIO", "¿Desea abandonar el programa?", 1, 2, 0};
const Aviso SALIR_GRABADORA{
    "Salir del programa",
    "Tiene que apagar la Grabadora de movimientos antes de poder salir del programa.", 2, 1, 2170};
const Aviso ARCHIVO_GRABADORA{
    "Grabadora encendida",
    "Tiene que apagar la Grabadora de jugadas antes de poder cargar o guardar un puzzle.", 2, 1, 0};

}  // namespace aviso

std::span<const Aviso* const> Avisos() {
    static constexpr const Aviso* TODOS[] = {&aviso::RESOLUCION,
                                             &aviso::MODO_NO_CAMBIA,
                                             &aviso::MODO_CAMBIADO,
                                             &aviso::MODO_REINICIO,
                                             &aviso::MODO_FALLIDO,
                                             &aviso::BIENVENIDA,
                                             &aviso::SIN_CONFIGURACION,
                                             &aviso::SIN_AJUSTES,
                                             &aviso::ERROR_CONFIGURACION,
                                             &aviso::ERROR_AJUSTES,
                                             &aviso::IMAGEN_NO_VALIDA,
                                             &aviso::IMAGEN_RECHAZADA,
                                             &aviso::IMAGEN_ADAPTADA,
                                             &aviso::ZOOM_EXCESIVO,
                                             &aviso::NO_ES_IMAGEN,
                                             &aviso::IMAGEN_SIN_USO,
                                             &aviso::IMAGEN_SIN_GUARDAR,
                                             &aviso::CAMBIO_JUEGO,
                                             &aviso::CAMBIO_PARAMETROS,
                                             &aviso::CAMBIO_MODELO,
                                             &aviso::BORRA_MODELO,
                                             &aviso::IMAGEN_PERDIDA,
                                             &aviso::SIN_SOLUCION,
                                             &aviso::YA_RESUELTO,
                                             &aviso::RESUELTO,
                                             &aviso::AL_HISTORICO,
                                             &aviso::ERROR_HISTORICO,
                                             &aviso::HISTORICO_AUSENTE,
                                             &aviso::HISTORICO_SIN_RUTA,
                                             &aviso::HISTORICO_ILEGIBLE,
                                             &aviso::MEZCLA_TANGRAM,
                                             &aviso::ORDEN_A_MANO,
                                             &aviso::ORDEN_INSOLUBLE,
                                             &aviso::SALIR,
                                             &aviso::SALIR_GRABADORA,
                                             &aviso::ARCHIVO_GRABADORA};
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
