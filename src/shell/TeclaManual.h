// F1 anywhere in the program: opens the manual at the page of the control with the focus.
#pragma once

#include <QObject>
#include <QPointer>

class FrmManual;
class QWidget;

class TeclaManual final : public QObject {
    Q_OBJECT

public:
    // Listens to the whole application from now on. The manual's window belongs to `principal`, which outlives this.
    explicit TeclaManual(QWidget& principal);

    void abrir(const QString& pagina);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    FrmManual& manual();

    QWidget& principal_;
    QPointer<FrmManual> manual_;
};
