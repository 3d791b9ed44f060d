// Answers message boxes as a person does: notes what each shows and clicks a button, the first unless told otherwise.
//
//     CajaDeMensaje caja;
//     QTest::mouseClick(boton, Qt::LeftButton);   // opens the box, returns when it is closed
//     QCOMPARE(caja.texto, ...);
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <utility>

class CajaDeMensaje {
public:
    explicit CajaDeMensaje(QString cual = {}) : boton(std::move(cual)) {
        QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [this] { mirar(); });
        reloj_.start(5);
    }

    QString boton; // the text of the button to click; empty: the first

    int vistas = 0; // how many boxes have been answered
    QString texto;
    QString titulo;
    QStringList botones;
    QMessageBox::Icon icono = QMessageBox::NoIcon;
    Qt::WindowModality modalidad = Qt::NonModal;

private:
    void mirar() {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (caja == nullptr || !caja->isVisible())
            return;
        ++vistas;
        texto = caja->text();
        titulo = caja->windowTitle();
        icono = caja->icon();
        modalidad = caja->windowModality();
        botones.clear();
        const auto todos = caja->buttons();
        QAbstractButton* pulsado = todos.constFirst();
        for (QAbstractButton* cual : todos) {
            botones.append(cual->text());
            if (cual->text() == boton)
                pulsado = cual;
        }
        QTest::mouseClick(pulsado, Qt::LeftButton);
    }

    QTimer reloj_;
};
