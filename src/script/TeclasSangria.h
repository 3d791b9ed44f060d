// The keys of the code editor that indent: Tab, Shift+Tab, Backspace, Enter, and the words that end a block.
#pragma once

#include <QPlainTextEdit>
#include <QString>

class QKeyEvent;

class TeclasSangria {
public:
    static constexpr int columnas = 4; // one step

    // Borrowed.
    explicit TeclasSangria(QPlainTextEdit& editor) : editor_(editor) {}

    // Acts on a key that indents. False: it is none.
    bool atender(const QKeyEvent& tecla);

    // After letters were written at the end of a line: a line that now ends a block goes back to where the block began;
    // one that only looked so for a moment ("Next" on the way to "NextStep") returns.
    void trasEscribir();
    void trasTecla(const QKeyEvent& tecla);

private:
    void insertarTabulador();
    void sangrarSeleccion(int sentido);
    bool borrarSangria();
    void nuevaLinea();
    void alinearCierre(const QTextCursor& cursor, int cierra) const;

    QPlainTextEdit& editor_;
    int movida_ = -1;       // the line that trasEscribir() moved back, from 0; -1: none, or it may be another one
    int lineas_ = 0;        // how many there were then
    QString sangriaPrevia_; // which it had before
};
