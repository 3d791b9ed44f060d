// Answers the next message box as a person does: notes what it shows and clicks its button.
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

class CajaDeMensaje {
public:
    CajaDeMensaje() {
        QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [this] { mirar(); });
        reloj_.start(5);
    }

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
        for (const QAbstractButton* boton : todos)
            botones.append(boton->text());
        QTest::mouseClick(todos.constFirst(), Qt::LeftButton);
    }

    QTimer reloj_;
};
