// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Superficies.h"

#include "core/Paleta.h"

namespace tessario {

Ventana Mesa;
Superficie Pic_Fondo, Pic_Imagen;
Cuadro Pic_Trabajo;
Superficie Pic_PiezaMascara, Pic_PiezaImagen, Pic_PiezaFinal, Pic_PiezaColor;
std::array<Molde, MOLDES> Pic_Moldes;
Superficie Pic_Bitmap, Pic_Temporal, Pic_FonTamReal, Pic_FonTamModi;
Superficie Pic_BmpBoton, Pic_BmpVario;
Cuadro Pic_Muestra, Pic_Sugerencia, Pic_SugeMasAyuda, Pic_SugeBotCerrar, Pic_SelOpciones;
BarraDesplazamiento BarraHor, BarraVer;
Cuadro Pic_Cuadrito;
Cruz CruzMesa;
Cuadro Pic_Botonera;
Cuadro Pic_Boton_[12];
Cuadro Pic_Cronome, Pic_CroTime, Pic_InfoColo, Pic_Grabadora;
Temporizador Timer1;

void ReiniciaSuperficies() {
    Mesa = Ventana{};
    Mesa.Nombre = "Mesa";

    for (Superficie* s : {&Pic_Fondo, &Pic_Imagen, &Pic_PiezaMascara, &Pic_PiezaImagen,
                          &Pic_PiezaFinal, &Pic_PiezaColor, &Pic_Bitmap, &Pic_Temporal,
                          &Pic_FonTamReal, &Pic_FonTamModi, &Pic_BmpBoton, &Pic_BmpVario})
        *s = Superficie{};
    Pic_Moldes = {};
    // Masks and templates: closed figures come out filled in black on a white ground.
    for (Superficie* s : {&Pic_PiezaMascara, &Pic_Temporal}) s->FillSolido = true;
    Pic_PiezaColor.PonBackColor(paleta::VERDE);

    const struct {
        Cuadro* cuadro;
        const char* nombre;
    } cuadros[] = {{&Pic_Trabajo, "Pic_Trabajo"},
                   {&Pic_Muestra, "Pic_Muestra"},
                   {&Pic_Sugerencia, "Pic_Sugerencia"},
                   {&Pic_SugeMasAyuda, "Pic_SugeMasAyuda"},
                   {&Pic_SugeBotCerrar, "Pic_SugeBotCerrar"},
                   {&Pic_SelOpciones, "Pic_SelOpciones"},
                   {&Pic_Cuadrito, "Pic_Cuadrito"},
                   {&Pic_Botonera, "Pic_Botonera"},
                   {&Pic_Cronome, "Pic_Cronome"},
                   {&Pic_CroTime, "Pic_CroTime"},
                   {&Pic_InfoColo, "Pic_InfoColo"},
                   {&Pic_Grabadora, "Pic_Grabadora"}};
    for (const auto& c : cuadros) {
        *c.cuadro = Cuadro{};
        c.cuadro->Nombre = c.nombre;
    }
    for (i32 i = 1; i <= 12; ++i) {
        Pic_Boton(i) = Cuadro{};
        Pic_Boton(i).Nombre = "Pic_Boton" + std::to_string(i);
    }
    for (Cuadro* c : {&Pic_Muestra, &Pic_Sugerencia, &Pic_SelOpciones, &Pic_Cuadrito})
        c->Visible = false;

    BarraHor = BarraDesplazamiento{};
    BarraHor.Nombre = "BarraHor";
    BarraVer = BarraDesplazamiento{};
    BarraVer.Nombre = "BarraVer";
    BarraVer.Vertical = true;
    BarraHor.Visible = BarraVer.Visible = false;

    CruzMesa = Cruz{};
    CruzMesa.Nombre = "CruzMesa";

    Timer1 = Temporizador{};
}

}  // namespace tessario
