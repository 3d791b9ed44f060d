#include "registers/MarcoControles.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>

#include <algorithm>

MarcoControles::MarcoControles(const QString& titulo, const QList<QCheckBox*>& casillas, QWidget* padre)
    : QGroupBox(titulo, padre), casillas_(casillas), rejilla_(new QGridLayout(this)) {
    // The layout must not impose the width of its widest form, or the frame could never become narrower.
    rejilla_->setSizeConstraint(QLayout::SetNoConstraint);
    repartir();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

int MarcoControles::anchoPara(int columnas) const {
    int casilla = 0;
    for (const QCheckBox* una : casillas_)
        casilla = std::max(casilla, una->sizeHint().width());
    const QMargins margenes = rejilla_->contentsMargins();
    const QMargins borde = contentsMargins();
    const int separacion = std::max(0, rejilla_->horizontalSpacing());
    return columnas * casilla + (columnas - 1) * separacion + margenes.left() + margenes.right() + borde.left() +
           borde.right();
}

QSize MarcoControles::minimumSizeHint() const {
    return {anchoPara(1), sizeHint().height()};
}

void MarcoControles::resizeEvent(QResizeEvent* evento) {
    QGroupBox::resizeEvent(evento);
    repartir();
}

void MarcoControles::changeEvent(QEvent* evento) {
    QGroupBox::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        repartir();
}

void MarcoControles::repartir() {
    const int columnas = width() >= anchoPara(4) ? 4 : width() >= anchoPara(2) ? 2 : 1;
    if (columnas == columnas_)
        return;
    columnas_ = columnas;
    for (int i = 0; i < casillas_.size(); ++i) {
        rejilla_->removeWidget(casillas_[i]);
        rejilla_->addWidget(casillas_[i], i / columnas, i % columnas);
    }
    for (int i = 0; i < 4; ++i)
        rejilla_->setColumnStretch(i, i < columnas ? 1 : 0);
    updateGeometry();
}
