#include "shell/FrmTxRx.h"

#include "modbus/VistaMonitor.h"
#include "shell/AyudaContextual.h"

#include <QVBoxLayout>

FrmTxRx::FrmTxRx(QWidget& principal, TextoMonitor& tramas) : QWidget(&principal, Qt::Window) {
    setObjectName(QStringLiteral("FrmTxRx"));
    setWindowTitle(QStringLiteral("TxRx"));
    setWindowIcon(principal.windowIcon());
    setAttribute(Qt::WA_ShowWithoutActivating);

    auto* Text1 = new VistaMonitor(tramas, this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("Tramas de todos los esclavos"));
    auto* diseno = new QVBoxLayout(this);
    diseno->addWidget(Text1);
    resize(640, 360);
    ponerAyudaContextual(*this);
}
