// The texts that the window system itself brings (buttons, menus of text boxes and scroll bars), in Spanish.
//
// The program carries them along, so that it speaks one language on a machine without translation files.
//
//     TextosQt textos;
//     QCoreApplication::installTranslator(&textos);
#pragma once

#include <QTranslator>

class TextosQt : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }

    // Null for a text that is not in the table: it stays as it is.
    QString translate(const char* contexto, const char* original, const char* aclaracion, int cantidad) const override;
};
