// The script's text as the search bar sees it: find, mark and replace in the code editor.
#pragma once

#include "platform/window/BarraBusqueda.h"

#include <QTextDocument>

class EditorCodigo;

class BusquedaCodigo final : public DondeBuscar {
public:
    // The editor is borrowed; the bar belongs to `padre`, into whose layout the caller puts it.
    BusquedaCodigo(EditorCodigo& editor, QWidget* padre);

    BarraBusqueda& barra() { return *barra_; }

private:
    QString seleccionParaBuscar() const override;
    void resaltar(const QString& patron, Qt::CaseSensitivity caja) override;
    void buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) override;
    void mostrarBarra(bool mostrada) override;
    void reemplazar(const QString& patron, const QString& nuevo, Qt::CaseSensitivity caja) override;
    int reemplazarTodo(const QString& patron, const QString& nuevo, Qt::CaseSensitivity caja) override;

    EditorCodigo& editor_;
    BarraBusqueda* barra_;
};
