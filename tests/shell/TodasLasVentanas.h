// Every window of the program, opened as an operator opens it, each with the page of the manual that tells of it.
#pragma once

#include "PrincipalDePrueba.h"

#include <QCheckBox>
#include <QInputDialog>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

#include <map>

class TodasLasVentanas : public PrincipalDePrueba {
public:
    struct Ventana {
        QPointer<QWidget> ventana;
        QString pagina; // of docs/manual, where F1 leads from it
    };

    TodasLasVentanas() {
        if (!cargar())
            qFatal("no start");
        activar(*ventana);
        todas.push_back({ventana.get(), QStringLiteral("inicio.md")});
        conRaton("Command2", "FrmConexionesPuentes", "puente.md");
        conRaton("btnVerFormularioRS232", "frmRS232", "puerto-serie.md");
        conRaton("Command1", "FrmAbout", "indice.md");
        conRaton("BtnEdicionCodigo", "FrmEdicionCodigo", "editor.md");
        conTecla(*ventana, Qt::Key_I, Qt::ControlModifier, "FrmEstadisticas", "estado.md#las-estadísticas");
        control<QCheckBox>("ChRxTx").click();
        agregar("FrmTxRx", "monitores.md#la-ventana-txrx");
        auto& cuadricula = control<QTableView>("MSFlexGrid(1)");
        cuadricula.setCurrentIndex(cuadricula.model()->index(0, 0));
        conTecla(*ventana, Qt::Key_R, Qt::ControlModifier, "FrmGrafica", "grafica.md");
        activar(*ventana);
        cuadricula.setFocus();
        conTecla(cuadricula, Qt::Key_Return, {}, "FrmMW", "cuadricula.md#escribir-un-registro-a-mano");
    }

    static void activar(QWidget& cual) {
        QCoreApplication::processEvents(); // what was activated before has its turn first
        cual.show();
        cual.activateWindow();
        if (!QTest::qWaitForWindowActive(&cual, paciencia) ||
            !QTest::qWaitFor([&] { return QApplication::activeWindow() == &cual; }, paciencia))
            qFatal("a window cannot be activated");
    }

    std::vector<Ventana> todas;

private:
    void conRaton(const char* boton, const char* nombre, const char* pagina) {
        QTest::mouseClick(&control<QPushButton>(boton), Qt::LeftButton);
        agregar(nombre, pagina);
    }
    void conTecla(QWidget& donde, Qt::Key tecla, Qt::KeyboardModifiers con, const char* nombre, const char* pagina) {
        activar(*ventana);
        QTest::keyClick(&donde, tecla, con);
        agregar(nombre, pagina);
    }
    void agregar(const char* nombre, const char* pagina) {
        auto* nueva = ventana->findChild<QWidget*>(QLatin1String(nombre));
        if (nueva == nullptr)
            for (QWidget* const suelta : QApplication::topLevelWidgets())
                if (suelta->objectName() == QLatin1String(nombre))
                    nueva = suelta;
        if (nueva == nullptr || !QTest::qWaitForWindowExposed(nueva, paciencia))
            qFatal("%s does not open; in front: %s, focus: %s", nombre,
                   QApplication::activeWindow() ? qPrintable(QApplication::activeWindow()->objectName()) : "-",
                   QApplication::focusWidget() ? qPrintable(QApplication::focusWidget()->objectName()) : "-");
        todas.push_back({nueva, QString::fromUtf8(pagina)});
    }
};
