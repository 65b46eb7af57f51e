// SPDX-License-Identifier: GPL-3.0-or-later
// Windows: modal ones, closing from outside, events nested in handlers, releases that get lost,
// errors, sleeping, the end of the program, the help beside a message.
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBrowser>
#include <ctime>

#include "PruebaQt.h"
#include "core/Errores.h"

namespace tessario {

namespace {

class VistaDeVentanas : public PruebaQt {
protected:
    void SetUp() override {
        PruebaQt::SetUp();
        mesa.Nombre = "Mesa";
        mesa.Tamano(400, 300);
        c.Tamano(100, 100);
        aviso.Nombre = "Aviso";
        aviso.Tamano(200, 100);
        aviso.Left = 100;
        aviso.Top = 100;
        boton.Tamano(48, 48);
        boton.Contenedor = nullptr;
        aviso.Controles = {&boton};
    }
    Ventana mesa, aviso;
    Cuadro c, boton;
    std::string diario;
};

TEST_F(VistaDeVentanas, AModalOneReturnsWhenItsButtonClosesIt) {
    Abre(mesa, {&c});
    aviso.Load = [&] { diario += "carga "; };
    aviso.Activate = [&] { diario += "activa "; };
    aviso.Unload = [&] { diario += "descarga "; };
    boton.Click = [&] { P().Cierra(aviso); };
    Luego(20, [&] { Pulsa(aviso, 10, 10); });
    P().MuestraModal(aviso);
    diario += "vuelve";
    EXPECT_EQ(diario, "carga activa descarga vuelve");
    EXPECT_FALSE(aviso.Abierta);
    EXPECT_EQ(P().VistaDe(aviso), nullptr);
}

TEST_F(VistaDeVentanas, TheMainWindowHasALeastSizeAndTheOthersTheirOwn) {
    mesa.PantallaCompleta = true;
    Abre(mesa, {&c});
    EXPECT_EQ(P().VistaDe(mesa)->minimumSize(), QSize(800, 600));
    Luego(20, [&] {
        EXPECT_EQ(P().VistaDe(aviso)->minimumSize(), QSize(200, 100));
        EXPECT_EQ(P().VistaDe(aviso)->maximumSize(), QSize(200, 100));
        P().Cierra(aviso);
    });
    P().MuestraModal(aviso);
}

TEST_F(VistaDeVentanas, WhileItIsOpenTheOneBelowGetsNothing) {
    Abre(mesa, {&c});
    c.MouseDown = [&](i16, i16, float, float) { diario += "mesa "; };
    Luego(20, [&] {
        Pulsa(mesa, 300, 50);
        Pulsa(mesa, 10, 10);
        P().Cierra(aviso);
    });
    P().MuestraModal(aviso);
    EXPECT_EQ(diario, "");
    Pulsa(mesa, 10, 10);
    EXPECT_EQ(diario, "mesa ");
}

TEST_F(VistaDeVentanas, OneThatClosesInItsOwnLoadNeverWaits) {
    aviso.Load = [&] { P().Cierra(aviso); };
    P().MuestraModal(aviso);
    EXPECT_FALSE(aviso.Abierta);
}

TEST_F(VistaDeVentanas, OneThatTheDesktopClosesWhileItComesUpIsGone) {
    Abre(mesa, {&c});
    aviso.Unload = [&] { diario += "descarga "; };
    aviso.Load = [&] {
        Luego(0, [&] {
            P().VistaDe(aviso)->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        });
    };
    P().MuestraModal(aviso);
    EXPECT_FALSE(aviso.Abierta);
    EXPECT_EQ(P().VistaDe(aviso), nullptr);
    EXPECT_EQ(diario, "descarga ");
    c.Click = [&] { diario += "click "; };
    Pulsa(mesa, 10, 10);
    EXPECT_EQ(diario, "descarga click ") << "the one below is open to the mouse again";
}

TEST_F(VistaDeVentanas, ClosingFromOutsideAsksFirst) {
    Abre(mesa, {&c});
    bool deja = false;
    mesa.QueryUnload = [&](bool& cancela) {
        diario += "pregunta ";
        cancela = !deja;
    };
    mesa.Unload = [&] { diario += "descarga "; };
    P().VistaDe(mesa)->close();
    EXPECT_TRUE(mesa.Abierta);
    deja = true;
    P().VistaDe(mesa)->close();
    EXPECT_FALSE(mesa.Abierta);
    EXPECT_EQ(diario, "pregunta pregunta descarga ");
    P().Cierra(mesa);
    EXPECT_EQ(diario, "pregunta pregunta descarga ") << "closing twice does nothing";
}

TEST_F(VistaDeVentanas, ItCanBeShownAgainAfterItClosed) {
    Abre(mesa, {&c});
    P().Cierra(mesa);
    Eventos();
    c.Click = [&] { diario += "click "; };
    P().Muestra(mesa);
    Eventos();
    Pulsa(mesa, 10, 10);
    EXPECT_EQ(diario, "click ");
}

TEST_F(VistaDeVentanas, TheReleaseArrivesInsideALoopThatLetsEventsThrough) {
    Abre(mesa, {&c});
    bool gira = false;
    int vueltas = 0;
    c.MouseDown = [&](i16, i16, float, float) {
        gira = true;
        diario += "gira ";
        while (gira && ++vueltas < 100000) {
            P().DejaPasarEventos();
            P().Duerme(1);
        }
        diario += "fin ";
    };
    c.MouseUp = [&](i16, i16, float, float) { diario += "arriba "; };
    c.Click = [&] {
        diario += "click ";
        gira = false;
    };
    Luego(40, [&] { Suelta(mesa, 10, 10, Qt::RightButton); });
    Aprieta(mesa, 10, 10, Qt::RightButton);
    EXPECT_EQ(diario, "gira arriba click fin ");
    EXPECT_EQ(P().BotonesApretados(), 0);
}

TEST_F(VistaDeVentanas, ALostReleaseIsDeliveredOnce) {
    Abre(mesa, {&c});
    c.MouseDown = [&](i16, i16, float, float) {
        diario += "abajo ";
        Luego(20, [&] { Suelta(aviso, 150, 80); });  // it goes to the message instead
        Luego(60, [&] { P().Cierra(aviso); });
        P().MuestraModal(aviso);
        diario += "vuelve ";
    };
    c.MouseUp = [&](i16 b, i16, float, float) { diario += "arriba" + std::to_string(b) + " "; };
    Aprieta(mesa, 10, 10);
    Eventos();
    Mueve(mesa, 300, 200);
    Eventos();
    EXPECT_EQ(diario, "abajo vuelve arriba1 ");
}

TEST_F(VistaDeVentanas, AHiddenControlGetsItsReleaseButNoClick) {
    Abre(mesa, {&c});
    c.MouseDown = [&](i16, i16, float, float) { c.Visible = false; };
    c.MouseUp = [&](i16, i16, float, float) { diario += "arriba "; };
    c.Click = [&] { diario += "click "; };
    Aprieta(mesa, 10, 10);
    Suelta(mesa, 10, 10);
    Mueve(mesa, 200, 200);
    Eventos();
    EXPECT_EQ(diario, "arriba ");
}

TEST_F(VistaDeVentanas, AnErrorInAHandlerEndsThereAndIsPending) {
    Abre(mesa, {&c});
    BorraError();
    c.MouseDown = [&](i16, i16, float, float) { throw ErrorEjecucion(ERROR_DESBORDE); };
    c.Click = [&] { diario += "click "; };
    Pulsa(mesa, 10, 10);
    EXPECT_EQ(diario, "click ");
    EXPECT_EQ(ErrorPendiente(), ERROR_DESBORDE);
    BorraError();
}

TEST_F(VistaDeVentanas, SleepingLetsNoEventThroughAndKeepsThem) {
    Abre(mesa, {&c});
    c.Click = [&] { diario += "click "; };
    bool corrio = false;
    Luego(0, [&] { corrio = true; });
    const u32 antes = P().timeGetTime();
    P().Duerme(60);
    EXPECT_GE(P().timeGetTime() - antes, 59U);
    EXPECT_FALSE(corrio);
    P().Duerme(0);
    P().Duerme(-5);
    EXPECT_FALSE(corrio);
    Eventos();
    EXPECT_TRUE(corrio);
}

TEST_F(VistaDeVentanas, AWaitingLoopRestsAndABusyOneIsNotHeldUp) {
    Abre(mesa, {&c});
    const auto procesador = [] { return static_cast<double>(clock()) / CLOCKS_PER_SEC; };
    QElapsedTimer t;
    t.start();
    double antes = procesador();
    while (t.elapsed() < 400) P().DejaPasarEventos();
    EXPECT_LT(procesador() - antes, 0.3) << "a loop that only waits leaves the processor alone";
    // Work of some 30 microseconds between the calls, a thousand times.
    t.restart();
    volatile unsigned suma = 0;
    long long trabajo = 0;
    for (int i = 0; i < 1000; ++i) {
        QElapsedTimer uno;
        uno.start();
        while (uno.nsecsElapsed() < 30000) suma = suma + 1;
        trabajo += uno.nsecsElapsed();
        P().DejaPasarEventos();
    }
    EXPECT_LT(t.nsecsElapsed() - trabajo, 100'000'000);
}

TEST_F(VistaDeVentanas, EndingTheProgramLeavesEveryNestedLoop) {
    Abre(mesa, {&c});
    c.Click = [&] {
        Luego(10, [&] { P().Termina(); });
        P().MuestraModal(aviso);
        diario += "sigue ";
    };
    c.MouseUp = [&](i16, i16, float, float) { diario += "arriba "; };
    Pulsa(mesa, 10, 10);
    EXPECT_EQ(diario, "arriba ") << "the handler was left at the question";
    EXPECT_EQ(P().Ejecuta(), 0);
}

TEST_F(VistaDeVentanas, ALoopThatNeverEndsIsLeftWhenTheProgramEnds) {
    Abre(mesa, {&c});
    c.MouseDown = [&](i16, i16, float, float) {
        for (;;) P().DejaPasarEventos();
    };
    Luego(30, [&] { P().Termina(); });
    Aprieta(mesa, 10, 10);
    EXPECT_TRUE(P().EstaCerrando());
}

TEST_F(VistaDeVentanas, TheWholeScreenOneHasTheScreensSize) {
    mesa.PantallaCompleta = true;
    mesa.Tamano(P().AnchoPantalla() + 2, P().AltoPantalla() + 2);
    Abre(mesa, {&c});
    EXPECT_EQ(P().VistaDe(mesa)->size(), QSize(P().AnchoPantalla(), P().AltoPantalla()));
    EXPECT_EQ(P().VistaDe(mesa)->pos(), QPoint(0, 0));
}

TEST_F(VistaDeVentanas, ASplashIsOnTheScreenWhileItsLoadHolds) {
    bool visible = false;
    mesa.Load = [&] {
        P().Duerme(5);
        visible = P().VistaDe(mesa)->isVisible();
    };
    mesa.Activate = [&] { P().Cierra(mesa); };
    P().Muestra(mesa);
    EXPECT_TRUE(visible);
    EXPECT_FALSE(mesa.Abierta);
}

TEST_F(VistaDeVentanas, TabWithoutStopsIsAKeyLikeAnyOther) {
    boton.Click = [&] { diario += "click "; };
    aviso.KeyDown = [&](i16 k, i16) { diario += std::to_string(k) + " "; };
    Abre(aviso, {&boton});
    Tecla(aviso, Qt::Key_Tab);
    Tecla(aviso, Qt::Key_Space);
    EXPECT_EQ(diario, "9 32 ");
}

TEST_F(VistaDeVentanas, FocusCanBeGivenByTheCode) {
    CajaTexto t;
    t.Tamano(100, 24);
    t.Mueve(0, 120);
    t.GotFocus = [&] { diario += "entra "; };
    t.LostFocus = [&] { diario += "sale "; };
    c.KeyPress = [](i16) {};
    mesa.Foco = &c;
    Abre(mesa, {&c, &t});
    P().PonFoco(t);
    Escribe(mesa, "hola");
    EXPECT_EQ(t.Text, "hola");
    P().PonFoco(c);
    Eventos();
    EXPECT_EQ(diario, "entra sale ");
}

TEST_F(VistaDeVentanas, TheHelpCanBeUsedBesideAMessage) {
    Abre(mesa, {&c});
    bool escrito = false, abierta = false;
    Luego(20, [&] {
        P().Ayuda(0);
        Eventos();
        VentanaAyuda& ayuda = *P().AyudaAbierta();
        ayuda.Busqueda().setFocus();
        for (const char l : {'z', 'z', 'q'}) QTest::keyClick(ayuda.windowHandle(), l);
        Eventos();
        escrito = ayuda.Busqueda().text() == "zzq";
        abierta = aviso.Abierta;
        P().Cierra(aviso);
    });
    P().MuestraModal(aviso);
    EXPECT_TRUE(escrito);
    EXPECT_TRUE(abierta) << "the message stays";
    EXPECT_TRUE(P().AyudaAbierta()->isVisible()) << "and the help outlives it";
}

TEST_F(VistaDeVentanas, HelpShowsTheStartPageForTopicsWithoutAPage) {
    Abre(mesa, {&c});
    P().Ayuda(31999);
    EXPECT_EQ(P().AyudaAbierta()->Hojas().source().toString(), "qrc:/ayuda/inicio.html");
    EXPECT_FALSE(P().AyudaAbierta()->Hojas().toPlainText().isEmpty());
    const int todas = P().AyudaAbierta()->Indice().count();
    EXPECT_GE(todas, 1);
    P().AyudaAbierta()->Busqueda().setText("palabraquenoexiste");
    EXPECT_EQ(P().AyudaAbierta()->Indice().count(), 0);
    P().AyudaAbierta()->Busqueda().setText("");
    EXPECT_EQ(P().AyudaAbierta()->Indice().count(), todas);
}

TEST_F(VistaDeVentanas, TheIndexOfTheHelpMarksThePageOnShow) {
    Abre(mesa, {&c});
    P().Ayuda(3010);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    const auto marcada = [&] {
        const QListWidgetItem* const i = ayuda.Indice().currentItem();
        return i ? i->text() : QString();
    };
    const auto titulo = [&] { return ayuda.Hojas().documentTitle(); };
    EXPECT_EQ(marcada(), titulo());
    const QString primera = titulo();
    P().Ayuda(2200);
    EXPECT_EQ(marcada(), titulo());
    EXPECT_NE(titulo(), primera);
    ayuda.Hojas().backward();
    EXPECT_EQ(titulo(), primera);
    EXPECT_EQ(marcada(), primera);
}

TEST_F(VistaDeVentanas, HelpSaysWhenASearchFindsNothing) {
    P().Ayuda(0);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    EXPECT_FALSE(ayuda.SinHallazgos().isVisible());
    ayuda.Busqueda().setText("palabraquenoexiste");
    EXPECT_TRUE(ayuda.SinHallazgos().isVisible());
    EXPECT_FALSE(ayuda.SinHallazgos().text().isEmpty());
    ayuda.Busqueda().setText("piezas");
    EXPECT_FALSE(ayuda.SinHallazgos().isVisible());
}

TEST_F(VistaDeVentanas, HelpMarksTheWordsThatWereFoundAccentsOrNot) {
    P().Ayuda(2200);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    EXPECT_TRUE(ayuda.Hojas().extraSelections().isEmpty());
    ayuda.Busqueda().setText("AUTOMATICO");
    const auto marcas = ayuda.Hojas().extraSelections();
    ASSERT_FALSE(marcas.isEmpty());
    for (const auto& m : marcas)
        EXPECT_EQ(m.cursor.selectedText().toLower().toStdString(), "automático");
    // The next page is marked as it is opened.
    ayuda.Busqueda().setText("girar");
    P().Ayuda(4040);
    Eventos();
    ASSERT_FALSE(ayuda.Hojas().extraSelections().isEmpty());
    EXPECT_EQ(ayuda.Hojas().extraSelections().first().cursor.selectedText().toLower(), "girar");
    ayuda.Busqueda().clear();
    EXPECT_TRUE(ayuda.Hojas().extraSelections().isEmpty());
}

TEST_F(VistaDeVentanas, HelpsListHasTheGroupsOfTheStartPage) {
    P().Ayuda(0);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    QStringList cabezas, enGrupo;
    for (int i = 0; i < ayuda.Indice().count(); ++i) {
        const QListWidgetItem* const fila = ayuda.Indice().item(i);
        if (fila->flags() & Qt::ItemIsSelectable)
            enGrupo << fila->text();
        else
            cabezas << fila->text();
    }
    EXPECT_EQ(cabezas.first(), "Primeros pasos");
    EXPECT_TRUE(cabezas.contains("Los tres juegos"));
    EXPECT_TRUE(cabezas.contains("Guardar y cargar"));
    EXPECT_EQ(enGrupo.first(), "Ayuda de Tessario");
    EXPECT_EQ(enGrupo.removeDuplicates(), 0);
    EXPECT_EQ(enGrupo.size(), QDir(":/ayuda").entryList({"*.html"}).size()) << "every page once";
}

TEST_F(VistaDeVentanas, TheSearchPutsPagesWithTheWordsInTheTitleFirstAndReturnOpensThem) {
    Abre(mesa, {&c});
    P().Ayuda(0);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    ayuda.Busqueda().setText("PIEZAS ocultas");
    ASSERT_GE(ayuda.Indice().count(), 2);
    EXPECT_EQ(ayuda.Indice().item(0)->text(), "Mostrar piezas ocultas");
    QTest::keyClick(&ayuda.Busqueda(), Qt::Key_Return);
    EXPECT_EQ(ayuda.Hojas().documentTitle(), "Mostrar piezas ocultas");
    QTest::keyClick(&ayuda.Busqueda(), Qt::Key_Escape);
    EXPECT_FALSE(ayuda.isVisible());
}

TEST_F(VistaDeVentanas, EveryPageOfTheHelpIsReadWithoutScrollingSideways) {
    Abre(mesa, {&c});
    P().Ayuda(0);
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    ASSERT_GT(ayuda.Indice().count(), 30);
    int paginas = 0;
    for (int i = 0; i < ayuda.Indice().count(); ++i) {
        if (ayuda.Indice().item(i)->flags() == Qt::NoItemFlags) continue;  // the head of a group
        ++paginas;
        ayuda.Indice().setCurrentRow(i);
        QTest::keyClick(&ayuda.Indice(), Qt::Key_Return);
        Eventos();
        EXPECT_EQ(ayuda.Hojas().documentTitle(), ayuda.Indice().item(i)->text());
        EXPECT_EQ(ayuda.Hojas().horizontalScrollBar()->maximum(), 0)
            << ayuda.Indice().item(i)->text().toStdString();
    }
    EXPECT_GT(paginas, 30);
}

TEST_F(VistaDeVentanas, DateAndTimeHaveTheShortSpanishForms) {
    const std::string fecha = P().Fecha(), hora = P().Hora();
    ASSERT_EQ(fecha.size(), 10U);
    EXPECT_EQ(fecha[2], '/');
    EXPECT_EQ(fecha[5], '/');
    EXPECT_EQ(fecha.substr(6, 2), "20");
    ASSERT_EQ(hora.size(), 8U);
    EXPECT_EQ(hora[2], ':');
    EXPECT_EQ(hora[5], ':');
    EXPECT_EQ(P().CarpetaDelPrograma().back(), '/');
    EXPECT_NE(P().PruebaModoPantalla(800, 600), 0);
}

}  // namespace
}  // namespace tessario
