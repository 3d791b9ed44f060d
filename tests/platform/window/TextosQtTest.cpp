#include "platform/window/TextosQt.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

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

    void aTextThatItDoesNotKnowStays() {
        QCOMPARE(QCoreApplication::translate("x", "Puentes"), QStringLiteral("Puentes"));
    }
};

QTEST_MAIN(TestTextosQt)
#include "TextosQtTest.moc"
