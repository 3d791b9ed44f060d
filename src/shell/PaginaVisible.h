// The page of the manual that is on the screen: Markdown with its pictures, working links within the manual, its
// headings as anchors.
#pragma once

#include "platform/window/BarraBusqueda.h"

#include <QTextBrowser>

class PaginaVisible final : public QTextBrowser, private DondeBuscar {
    Q_OBJECT

public:
    explicit PaginaVisible(QWidget* padre);

    // The search bar, to be put under the page.
    BarraBusqueda& barra() { return *barra_; }

    // Marks these words wherever they stand, whatever their accents.
    void resaltarPalabras(const QString& palabras);

    QVariant loadResource(int tipo, const QUrl& nombre) override;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QString seleccionParaBuscar() const override;
    void resaltar(const QString& patron, Qt::CaseSensitivity caja) override;
    void buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) override;
    void mostrarBarra(bool mostrada) override;

    void alCambiarDePagina(const QUrl& url);
    void componer();
    void ponerAnclas();
    void componerTablas();
    void componerCodigo();
    void ajustarImagenes();

    BarraBusqueda* barra_;
    QString compuesta_; // the page whose document is laid out
};
