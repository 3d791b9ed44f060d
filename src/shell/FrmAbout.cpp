#include "shell/FrmAbout.h"

#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "shell/AyudaContextual.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FrmAbout::FrmAbout(QWidget& principal) : QDialog(&principal) {
    setObjectName(QStringLiteral("FrmAbout"));
    setWindowTitle(QStringLiteral("Trelvano - About"));
    ponerPaginaManual(*this, "indice.md");
    setWindowIcon(principal.windowIcon());

    auto* imagen = nombrado(new QLabel(this), "Image1", QStringLiteral("Icono del programa"));
    imagen->setPixmap(principal.windowIcon().pixmap(QSize(64, 64), devicePixelRatioF()));

    auto* LblDesc = nombrado(new QLabel(QStringLiteral("Estación esclava Modbus TCP"), this), "LblDesc");
    QFont grande = LblDesc->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.3);
    LblDesc->setFont(grande);

    auto* version = nombrado(new QLabel(QStringLiteral("Pendra 3.1.9"), this), "Label_ControlDeVercion");
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* cerrar = crearBoton(this, "BtnSalir", QStringLiteral("Cerrar"));
    connect(cerrar, &QPushButton::clicked, this, &QDialog::close);

    auto* textos = new QVBoxLayout;
    textos->addStretch(1);
    textos->addWidget(LblDesc);
    textos->addWidget(version);
    textos->addStretch(1);
    auto* arriba = new QHBoxLayout;
    arriba->setSpacing(16);
    arriba->addWidget(imagen);
    arriba->addLayout(textos, 1);
    auto* diseno = new QVBoxLayout(this);
    diseno->addLayout(arriba);
    diseno->addWidget(cerrar, 0, Qt::AlignRight);
    diseno->setSizeConstraint(QLayout::SetFixedSize);
    ponerAyudaContextual(*this);
}
