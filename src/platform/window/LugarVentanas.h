// Opens every window inside its screen, with the size and at the place where the operator left it.
//
// Screens change between two starts, so what was kept is corrected to what there is now. A window's name is its
// objectName; boxes without one are only kept inside the screen.
//
//     LugarVentanas lugar([&](const QString& ventana) { return ...; }, [&](const QString& ventana, const QString&
//     lugar) { ... }); qApp->installEventFilter(&lugar);
#pragma once

#include <QObject>
#include <QRect>
#include <QString>
#include <QTimer>

#include <functional>

class QWidget;

// The place inside `disponible` (pixels) that is nearest to `lugar`: as large as it, but not larger than the screen.
QRect dentroDe(const QRect& disponible, const QRect& lugar);

class LugarVentanas final : public QObject {
    Q_OBJECT

public:
    using Leer = std::function<QString(const QString& ventana)>; // empty: nothing kept
    using Guardar = std::function<void(const QString& ventana, const QString& lugar)>;

    // Called for every window that opens, and some time after the operator has moved or resized one.
    LugarVentanas(Leer leer, Guardar guardar);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void colocar(QWidget& ventana) const;
    void guardarCambiadas();

    Leer leer_;
    Guardar guardar_;
    QTimer reloj_{this};
};
