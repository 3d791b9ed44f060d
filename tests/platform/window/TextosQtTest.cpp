#include "platform/window/TextosQt.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <memory>

class TestTextosQt : public QObject {
    Q_OBJECT

private:
    TextosQt textos_;

    static QStringList rotulos(const QMenu& menu) {
        QStringList lista;
        for (const QAction* accion : menu.actions())
            if (!accion->isSeparator())
                lista.append(accion->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')));
        return lista;
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&textos_)); }

    void standardButtonsAreInSpanish() {
        const QDialogButtonBox caja(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Close);
        QCOMPARE(caja.button(QDialogButtonBox::Ok)->text().remove(QLatin1Char('&')), QStringLiteral("Aceptar"));
        QCOMPARE(caja.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char('&')), QStringLiteral("Cancelar"));
        QCOMPARE(caja.button(QDialogButtonBox::Close)->text().remove(QLatin1Char('&')), QStringLiteral("Cerrar"));
    }

    void menuOfALineEditIsInSpanish() {
        QLineEdit caja;
        const std::unique_ptr<QMenu> menu(caja.createStandardContextMenu());
        QCOMPARE(rotulos(*menu),
                 (QStringList{QStringLiteral("Deshacer"), QStringLiteral("Rehacer"), QStringLiteral("Cortar"),
                              QStringLiteral("Copiar"), QStringLiteral("Pegar"), QStringLiteral("Eliminar"),
                              QStringLiteral("Seleccionar todo")}));
    }

    void menuOfAReadOnlyTextBoxIsInSpanish() {
        QPlainTextEdit caja;
        caja.setReadOnly(true);
        const std::unique_ptr<QMenu> menu(caja.createStandardContextMenu());
        QCOMPARE(rotulos(*menu), (QStringList{QStringLiteral("Copiar"), QStringLiteral("Seleccionar todo")}));
    }

    // Every word that the dialog shows or has an assistive tool read, but for names of files.
    void askingForAFileIsInSpanish() {
        QFileDialog dialogo(nullptr, QStringLiteral("Guardar"), QDir::rootPath(), QStringLiteral("Texto (*.txt)"));
        dialogo.setOption(QFileDialog::DontUseNativeDialog);
        dialogo.setAcceptMode(QFileDialog::AcceptSave);
        QStringList textos;
        for (const auto* rotulo : dialogo.findChildren<QLabel*>())
            textos << rotulo->text();
        for (const auto* boton : dialogo.findChildren<QAbstractButton*>())
            textos << boton->text() << boton->toolTip() << boton->accessibleDescription();
        for (const auto* lista : dialogo.findChildren<QTreeView*>())
            for (int i = 0; lista->model() != nullptr && i < lista->model()->columnCount(); ++i)
                textos << lista->model()->headerData(i, Qt::Horizontal).toString();
        for (const auto* accion : dialogo.findChildren<QAction*>())
            textos << accion->text();
        textos.replaceInStrings(QStringLiteral("&"), QString());
        for (const char* palabra : {"Buscar en:", "Nombre:", "Tipo:", "Guardar", "Cancelar", "Volver atrás", "Tamaño",
                                    "Modificado", "Mostrar los archivos ocultos"})
            QVERIFY2(textos.contains(QString::fromUtf8(palabra)), palabra);
        const QRegularExpression ingles(
            QStringLiteral("\\b(the|Look|File|Files|Save|Open|Name|Size|Date|Type|Back|Forward|Folder|View|Directory|"
                           "Rename|Delete|Show|hidden|places|Create|Go|to)\\b"),
            QRegularExpression::CaseInsensitiveOption);
        for (const QString& texto : textos)
            QVERIFY2(!ingles.match(texto).hasMatch(), qPrintable(texto));
    }

    void namesOfKeysAreInSpanish() {
        const QKeySequence tecla(Qt::CTRL | Qt::SHIFT | Qt::Key_Left);
        QCOMPARE(tecla.toString(QKeySequence::NativeText), QStringLiteral("Ctrl+Mayús+Izquierda"));
        QCOMPARE(QKeySequence(QStringLiteral("Ctrl+Shift+Left")), tecla);
    }

    void aTextThatItDoesNotKnowStays() {
        QCOMPARE(QCoreApplication::translate("x", "Puentes"), QStringLiteral("Puentes"));
    }
};

QTEST_MAIN(TestTextosQt)
#include "TextosQtTest.moc"
