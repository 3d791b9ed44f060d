// The TX/RX window: the frame lines of all slaves in one text.
#pragma once

#include <QWidget>

class TextoMonitor;

class FrmTxRx final : public QWidget {
    Q_OBJECT

public:
    // `tramas` is borrowed and outlives the window.
    FrmTxRx(QWidget& principal, TextoMonitor& tramas);
};
