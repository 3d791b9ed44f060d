#include "platform/window/InputBox.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class TestInputBox : public QObject {
    Q_OBJECT

    // Types into the box and closes it with a key.
    static QString contestar(const QString& escrito, Qt::Key cierre, QStringList* botones = nullptr) {
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, &vigia, [&] {
            QWidget* const caja = QApplication::activeModalWidget();
            if (caja == nullptr)
                return;
            vigia.stop();
            if (botones != nullptr)
                for (const auto* boton : caja->findChildren<QPushButton*>())
                    botones->append(boton->text());
            QTest::keyClicks(caja->findChild<QLineEdit*>(), escrito);
            QTest::keyClick(caja, cierre);
        });
        vigia.start(5);
        return InputBox(nullptr, QStringLiteral("Valor:"), QStringLiteral("t"), QStringLiteral("12"));
    }

private Q_SLOTS:
    void enterAnswersWhatIsThere() { QCOMPARE(contestar({}, Qt::Key_Return), QStringLiteral("12")); }

    void typingReplacesTheDefault() { QCOMPARE(contestar(QStringLiteral("7"), Qt::Key_Return), QStringLiteral("7")); }

    void escapeAnswersNothing() { QCOMPARE(contestar(QStringLiteral("7"), Qt::Key_Escape), QString()); }

    void boxEndsWithItsParentAndAnswersNothing() {
        const QPointer<QWidget> ventana = new QWidget;
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (QApplication::activeModalWidget() != nullptr)
                delete ventana;
        });
        vigia.start(5);
        QCOMPARE(InputBox(ventana, QStringLiteral("x"), {}, QStringLiteral("12")), QString());
        QVERIFY(!ventana);
    }

    void buttonsSpeakSpanish() {
        QStringList botones;
        contestar({}, Qt::Key_Return, &botones);
        QCOMPARE(botones, QStringList({QStringLiteral("Aceptar"), QStringLiteral("Cancelar")}));
    }
};

QTEST_MAIN(TestInputBox)
#include "InputBoxTest.moc"
