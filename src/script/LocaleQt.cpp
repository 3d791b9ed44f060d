#include "script/LocaleQt.h"

#include "platform/vbscript/Host.h"

#include <QLocale>
#include <QRegularExpression>

#include <optional>

namespace {

char16_t signo(const QString& texto, char16_t sinTexto) {
    return texto.isEmpty() ? sinTexto : texto.at(0).unicode();
}

vbs::DateOrder orden(const QString& patron) {
    const auto dia = patron.indexOf(u'd');
    const auto mes = patron.indexOf(u'M');
    const auto ano = patron.indexOf(u'y');
    if (ano < mes)
        return vbs::DateOrder::YearMonthDay;
    return mes < dia ? vbs::DateOrder::MonthDayYear : vbs::DateOrder::DayMonthYear;
}

// Years are always written in full: a date turned into text and back must stay the same.
std::u16string conAno(QString patron) {
    static const QRegularExpression dosCifras(QStringLiteral("(?<!y)yy(?!y)"));
    return patron.replace(dosCifras, QStringLiteral("yyyy")).toStdU16String();
}

std::u16string horas(QString patron) {
    patron.replace(QLatin1String("AP"), QLatin1String("tt"), Qt::CaseInsensitive);
    static const QRegularExpression zona(QStringLiteral("\\s*t(?!t)(?<!tt)"));
    return patron.replace(zona, QString()).simplified().toStdU16String();
}

// An amount as a pattern: $ where the symbol stands, n for the number.
std::u16string moneda(const QLocale& local, double importe) {
    static const QRegularExpression numero(QStringLiteral("\\d[\\d.,]*"));
    QString texto = local.toCurrencyString(importe, QStringLiteral("$"));
    texto.replace(numero, QStringLiteral("n")).replace(QChar(0xA0), u' ').replace(QChar(0x2212), u'-');
    return texto.toStdU16String();
}

vbs::Locale hechosDe(const QLocale& local, int id) {
    vbs::Locale l;
    l.id = id;
    l.decimal = signo(local.decimalPoint(), u'.');
    l.thousands = signo(local.groupSeparator(), u' ');
    l.currencySymbol = local.currencySymbol().toStdU16String();
    l.positiveCurrency = moneda(local, 1);
    l.negativeCurrency = moneda(local, -1);
    l.dateOrder = orden(local.dateFormat(QLocale::ShortFormat));
    l.shortDate = conAno(local.dateFormat(QLocale::ShortFormat));
    l.longDate = conAno(local.dateFormat(QLocale::LongFormat));
    l.shortTime = horas(local.timeFormat(QLocale::ShortFormat));
    l.longTime = horas(QString(local.timeFormat(QLocale::LongFormat)));
    l.am = local.amText().toStdU16String();
    l.pm = local.pmText().toStdU16String();
    for (int mes = 1; mes <= 12; ++mes) {
        l.months[static_cast<std::size_t>(mes - 1)] = local.monthName(mes).toStdU16String();
        l.shortMonths[static_cast<std::size_t>(mes - 1)] = local.monthName(mes, QLocale::ShortFormat).toStdU16String();
    }
    for (int dia = 1; dia <= 7; ++dia) { // here 1 is Monday, there 0 is Sunday
        l.weekdays[static_cast<std::size_t>(dia % 7)] = local.dayName(dia).toStdU16String();
        l.shortWeekdays[static_cast<std::size_t>(dia % 7)] = local.dayName(dia, QLocale::ShortFormat).toStdU16String();
    }
    l.firstDayOfWeek = local.firstDayOfWeek() % 7 + 1;
    return l;
}

QString nombre(std::u16string_view texto) {
    return QString::fromUtf16(texto.data(), static_cast<qsizetype>(texto.size()));
}

// The number of a locale by its own name ("es-ES"), else by its language ("ja"); 0 for one without number.
int numeroDe(const QLocale& local) {
    const QString completo = local.name().replace(u'_', u'-');
    const auto numero = vbs::localeNumber(completo.toStdU16String());
    return numero ? *numero : vbs::localeNumber(completo.section(u'-', 0, 0).toStdU16String()).value_or(0);
}

// The facts that the engine brings along for that locale, unless the user writes numbers in another way.
vbs::Locale hechosDelUsuario() {
    const QLocale local;
    const int numero = numeroDe(local);
    const vbs::Locale* const propios = numero != 0 ? vbs::builtinLocale(numero) : nullptr;
    vbs::Locale hechos = hechosDe(local, numero);
    return propios != nullptr && propios->decimal == hechos.decimal ? *propios : hechos;
}

std::optional<vbs::Locale> hechosDeNumero(int id) {
    if (id == 0)
        return hechosDelUsuario();
    if (vbs::builtinLocale(id) != nullptr)
        return std::nullopt;
    const QLocale local(nombre(vbs::localeName(id)).replace(u'-', u'_'));
    return local.language() == QLocale::C ? std::nullopt : std::optional(hechosDe(local, id));
}

} // namespace

const vbs::Locale* LocalesQt::locale(int id) {
    if (const auto hallado = hechos_.find(id); hallado != hechos_.end())
        return &hallado->second;
    auto hechos = hechosDeNumero(id);
    return hechos ? &hechos_.emplace(id, std::move(*hechos)).first->second : vbs::builtinLocale(id);
}
