// The help on "mw": every operation that scripts may call, with its arguments and an example.
#pragma once

#include <QWidget>

class AyudaMW final : public QWidget {
    Q_OBJECT

public:
    // A window of its own; not modal.
    explicit AyudaMW(QWidget* padre);

protected:
    void keyPressEvent(QKeyEvent* evento) override; // Esc closes
};
