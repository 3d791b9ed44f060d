// The text box of the script editor: monospaced, with line numbers, colours, automatic indentation, completion and
// marks.
//
// It gives and takes its whole text, with '\n' as line end, character by character. Texts of many megabytes stay
// usable: what is not in sight costs nothing.
#pragma once

#include "script/ResaltadoVBScript.h"
#include "script/TeclasSangria.h"

#include <QPlainTextEdit>
#include <QTextCursor>

class CompletadorCodigo;

class EditorCodigo final : public QPlainTextEdit {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ texto WRITE ponerTexto)

public:
    explicit EditorCodigo(QWidget* parent = nullptr);

    // Taking a text forgets what could be undone and the marks.
    QString texto() const;
    void ponerTexto(const QString& texto);

    // Another text in place of the whole, as one step that can be undone.
    void cambiarTexto(const QString& texto);

    // Underlines the word at that place as an error of compilation; line and column from 1. Line 0: no error.
    void marcarError(int linea, int columna);

    // Marks the line where the running script failed, from 1; 0: none. The mark moves with the text.
    void marcarFallo(int linea);

    // Where that mark stands now, from 1; 0: nowhere.
    int lineaFallo() const { return fallo_.hasSelection() ? fallo_.blockNumber() + 1 : 0; }

    // Puts the text cursor there, in sight; line and column from 1, beyond the text its end.
    void irA(int linea, int columna);

    // Whether the line of the text cursor can be seen.
    bool cursorALaVista() const;

    // Marks every occurrence that is in sight; empty: none.
    void resaltar(const QString& patron, Qt::CaseSensitivity caja);

    // Replaces every occurrence as one step that can be undone; returns how many there were.
    int reemplazarTodo(const QString& buscado, const QString& nuevo, Qt::CaseSensitivity caja);

    // The strip with the line numbers, for its widget.
    int anchoMargen() const;
    void pintarMargen(QPaintEvent& evento);
    int lineaEnMargen(int y) const; // its number from 0

    const ColoresCodigo& colores() const { return resaltado_.colores(); }

protected:
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void colorearVisibles();
    void pintarHallazgos();
    void colocarMargen();
    void ponerMarcas();
    void ponerParejas(QList<QTextEdit::ExtraSelection>& marcas) const;

    ResaltadoVBScript resaltado_;
    TeclasSangria sangria_;
    CompletadorCodigo* completador_;
    QWidget* margen_;
    QTextCursor error_; // its selection is underlined; without one: no error
    QTextCursor fallo_; // its selection is the line marked, from its end to its beginning; without one: none
    QString patron_;    // whose occurrences are marked
    Qt::CaseSensitivity cajaPatron_ = Qt::CaseInsensitive;
};
