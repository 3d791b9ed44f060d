// What holds for every window alike: names for assistive tools, texts in Spanish that are not cut, a tab order that
// reaches every control, a size that fits a small screen.

#include "TodasLasVentanas.h"
#include "shell/FrmManual.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolButton>

#include <algorithm>
#include <utility>

class TestVentanas : public QObject {
    Q_OBJECT

    std::unique_ptr<TodasLasVentanas> p_;
    std::unique_ptr<FrmManual> manual_;

    std::vector<QWidget*> ventanas() const {
        std::vector<QWidget*> todas;
        for (const auto& una : p_->todas)
            todas.push_back(una.ventana);
        todas.push_back(manual_.get());
        return todas;
    }
    // The controls that are seen and take the focus by Tab; inner parts of others (a spin box's line) are not.
    static QList<QWidget*> conFoco(const QWidget& ventana) {
        QList<QWidget*> controles;
        for (auto* control : ventana.findChildren<QWidget*>())
            if (control->window() == &ventana && control->isVisible() && control->isEnabled() &&
                (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr)
                controles << control;
        return controles;
    }
    static QString quien(const QWidget& ventana, const QWidget& control) {
        return ventana.objectName() + u'/' + control.objectName() + u'/' +
               QString::fromLatin1(control.metaObject()->className());
    }

private Q_SLOTS:
    void initTestCase() {
        p_ = std::make_unique<TodasLasVentanas>();
        manual_ = std::make_unique<FrmManual>(nullptr);
        manual_->abrir(QStringLiteral("indice.md"));
        TodasLasVentanas::activar(*manual_);
    }
    void cleanupTestCase() {
        manual_.reset();
        p_.reset();
    }

    void everyControlHasANameForAssistiveTools() {
        for (QWidget* const ventana : ventanas())
            for (QWidget* const control : conFoco(*ventana)) {
                QAccessibleInterface* const cara = QAccessible::queryAccessibleInterface(control);
                QVERIFY2(cara != nullptr && !cara->text(QAccessible::Name).isEmpty(),
                         qPrintable(quien(*ventana, *control)));
            }
        for (QWidget* const ventana : ventanas())
            for (auto* boton : ventana->findChildren<QToolButton*>())
                if (boton->window() == ventana && boton->isVisible() && !boton->objectName().startsWith("qt_"))
                    QVERIFY2(!boton->accessibleName().isEmpty() || !boton->text().isEmpty(),
                             qPrintable(quien(*ventana, *boton)));
    }

    void tabReachesEveryControlAndComesBack() {
        for (QWidget* const ventana : ventanas()) {
            QSet<QWidget*> pendientes;
            for (QWidget* const control : conFoco(*ventana))
                pendientes.insert(control);
            QWidget* const primero = ventana->nextInFocusChain();
            QWidget* actual = primero;
            do {
                pendientes.remove(actual);
                actual = actual->nextInFocusChain();
            } while (actual != primero);
            QVERIFY2(pendientes.empty(),
                     pendientes.empty() ? "" : qPrintable(quien(*ventana, **pendientes.constBegin())));
        }
    }

    void theFocusGoesDownAndToTheRight() {
        // From one control to the next it does not jump up within the same column of the window.
        for (QWidget* const ventana : ventanas()) {
            if (ventana->objectName() == QLatin1String("FrmPrincipal"))
                continue; // two columns; FrmPrincipalTest has its order
            QList<QWidget*> orden;
            QWidget* actual = ventana;
            const QList<QWidget*> seVen = conFoco(*ventana);
            do {
                if (seVen.contains(actual))
                    orden << actual;
                actual = actual->nextInFocusChain();
            } while (actual != ventana);
            // The order is a ring: it begins where the eye does, at the left of the uppermost row.
            const auto lugar = [ventana](const QWidget* control) {
                const QPoint centro = control->mapTo(ventana, QPoint(0, std::min(control->height(), 30) / 2));
                return std::pair(centro.y() / 30, centro.x());
            };
            const auto primero = std::min_element(
                orden.begin(), orden.end(), [&](const QWidget* a, const QWidget* b) { return lugar(a) < lugar(b); });
            std::rotate(orden.begin(), primero, orden.end());
            QStringList nombres;
            for (const QWidget* uno : orden)
                nombres << uno->objectName();
            for (int i = 1; i < orden.size(); ++i) {
                const QRect antes(orden[i - 1]->mapTo(ventana, QPoint()), orden[i - 1]->size());
                const QRect ahora(orden[i]->mapTo(ventana, QPoint()), orden[i]->size());
                const bool arriba = ahora.bottom() < antes.top() && ahora.left() <= antes.left();
                QVERIFY2(!arriba, qPrintable(ventana->objectName() + ": " + nombres.join(", ")));
            }
        }
    }

    void noTextOfAButtonOrLabelIsCut() {
        for (QWidget* const ventana : ventanas()) {
            for (auto* boton : ventana->findChildren<QAbstractButton*>())
                if (boton->window() == ventana && boton->isVisible() && !boton->text().isEmpty() &&
                    boton->objectName() != QLatin1String("BtnErrorScript"))
                    QVERIFY2(boton->width() >= boton->minimumSizeHint().width() &&
                                 boton->height() >= boton->minimumSizeHint().height(),
                             qPrintable(quien(*ventana, *boton)));
            for (auto* rotulo : ventana->findChildren<QLabel*>())
                if (rotulo->window() == ventana && rotulo->isVisible() && !rotulo->wordWrap() &&
                    rotulo->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored)
                    QVERIFY2(rotulo->width() >= rotulo->sizeHint().width() - 1, qPrintable(quien(*ventana, *rotulo)));
        }
    }

    void everyWindowFitsASmallScreen() {
        for (QWidget* const ventana : ventanas()) {
            const QSize minimo = ventana->minimumSizeHint();
            QVERIFY2(minimo.width() <= 1024 && minimo.height() <= 700, qPrintable(ventana->objectName()));
        }
    }

    void everyButtonThatIsNoWordHasATip() {
        for (QWidget* const ventana : ventanas())
            for (auto* boton : ventana->findChildren<QToolButton*>())
                if (boton->window() == ventana && boton->isVisible() && boton->text().size() <= 2 &&
                    !boton->objectName().startsWith("qt_") && !boton->objectName().isEmpty())
                    QVERIFY2(!boton->toolTip().isEmpty(), qPrintable(quien(*ventana, *boton)));
    }
};

QTEST_MAIN(TestVentanas)
#include "VentanasTest.moc"
