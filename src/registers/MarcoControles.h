// A titled frame that lays out its check boxes in one row, or in two or four where the width does not suffice.
#pragma once

#include <QGroupBox>
#include <QList>

class QCheckBox;
class QGridLayout;

class MarcoControles : public QGroupBox {
    Q_OBJECT

public:
    // Takes the boxes as its children, four of them.
    MarcoControles(const QString& titulo, const QList<QCheckBox*>& casillas, QWidget* padre = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void repartir();
    int anchoPara(int columnas) const;

    QList<QCheckBox*> casillas_;
    QGridLayout* rejilla_;
    int columnas_ = 0;
};
