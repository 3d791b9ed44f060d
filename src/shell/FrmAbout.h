// The About box: picture, description and version.
#pragma once

#include <QDialog>

class FrmAbout final : public QDialog {
    Q_OBJECT

public:
    explicit FrmAbout(QWidget& principal);
};
