#include "shell/FrmAbout.h"

#include "shell/AyudaContextual.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FrmAbout::FrmAbout(QWidget& principal) : QDialog(&principal) {
    setObjectName(QStringLiteral("FrmAbout"));
    setWindowTitle(QStringLiteral("Trelvano - About"));
    setWindowIcon(principal.windowIcon());

    auto* imagen = new QLabel(this);
    imagen->setObjectName(QStringLiteral("Image1"));
    imagen->setPixmap(principal.windowIcon().pixmap(QSize(64, 64), devicePixelRatioF()));
    imagen->setAccessibleName(QStringLiteral("Icono del programa"));

    auto* LblDesc = new QLabel(QStringLiteral("Estación esclava Modbus TCP"), this);
    LblDesc->setObjectName(QStringLiteral("LblDesc"));
    QFont grande = LblDesc->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.3);
    LblDesc->setFont(grande);

    auto* version = new QLabel(QStringLiteral("Pendra 3.1.9"), this);
    version->setObjectName(QStringLiteral("Label_ControlDeVercion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* cerrar = new QPushButton(QStringLiteral("Cerrar"), this);
    cerrar->setObjectName(QStringLiteral("BtnSalir"));
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
