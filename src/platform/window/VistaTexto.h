// A read-only text box for text that only ever grows at its end: monitors, logs, raw input.
//
// What is appended reaches the box a few dozen times a second and a few milliseconds of work at a time, so that a
// source faster than any screen does not hold the thread, and a text of 100 MB stays usable. CR LF, CR and LF each end
// a line, wherever the appended pieces are cut. A line longer than `maximoLinea` goes on in the next row of the box
// (a line is laid out whole, at a cost that grows with its length); texto() and copying give it back in one piece.
//
// The box follows the end while it is scrolled to the end, and otherwise stays where the operator looks.
#pragma once

#include <QDeadlineTimer>
#include <QPlainTextEdit>
#include <QString>
#include <QTimer>

class VistaTexto : public QPlainTextEdit {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ texto)

public:
    static constexpr qsizetype maximoLinea = 16384; // characters

    explicit VistaTexto(QWidget* parent = nullptr);

    // Appends; shown at the next catching up.
    void agregar(QStringView texto);

    // Empties the box at once, what was not yet shown included.
    void borrar();

    // Shows everything appended so far before it returns.
    void ponerAlDia();

    // Whether the box shows everything appended so far.
    bool alDia() const { return pendiente_.isEmpty(); }

    // The whole text with '\n' for each line end, what is still to be shown included.
    QString texto() const;

protected:
    QMimeData* createMimeDataFromSelection() const override;

private:
    void mostrar(QDeadlineTimer plazo);
    void seleccionar(int ancla, int posicion);
    void insertar(QTextCursor& cursor, QStringView lineas);
    QString textoEntre(int desde, int hasta) const;

    QString pendiente_;       // what is not yet shown starts at mostrados_; empty when everything is
    qsizetype mostrados_ = 0; // characters of pendiente_
    bool trasCR_ = false;     // the last character shown was a CR: a following LF belongs to it
    QTimer turno_;
};
