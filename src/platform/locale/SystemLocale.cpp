#include "platform/locale/SystemLocale.h"

QLocale systemLocale() {
    const QLocale system = QLocale::system();
    return system.language() == QLocale::C ? QLocale(QLocale::Spanish, QLocale::Spain) : system;
}

void useSystemLocale() {
    QLocale::setDefault(systemLocale());
}

char16_t decimalSign() {
    return QLocale().decimalPoint().at(0).unicode();
}
