// The facts of countries that scripts see.

#include "script/LocaleQt.h"

#include "platform/locale/SystemLocale.h"
#include "platform/vbscript/ScriptControl.h"
#include "script/HostScript.h"

#include <QLocale>
#include <QTest>

class TestLocaleQt : public QObject {
    Q_OBJECT

    LocalesQt locales_;

    static QString texto(const std::u16string& utf16) { return QString::fromStdU16String(utf16); }

private Q_SLOTS:
    void init() { useSystemLocale(); }

    void spanishAndEnglishAreTheEnginesOwn() {
        QCOMPARE(locales_.locale(3082), vbs::builtinLocale(3082));
        QCOMPARE(locales_.locale(1033), vbs::builtinLocale(1033));
    }

    void germanFacts() {
        const vbs::Locale* const de = locales_.locale(1031);
        QVERIFY(de != nullptr);
        QCOMPARE(de->id, 1031);
        QCOMPARE(de->decimal, u',');
        QCOMPARE(de->thousands, u'.');
        QCOMPARE(de->dateOrder, vbs::DateOrder::DayMonthYear);
        QCOMPARE(texto(de->shortDate), QStringLiteral("dd.MM.yyyy"));
        QCOMPARE(texto(de->longTime), QStringLiteral("HH:mm:ss"));
        QCOMPARE(texto(de->positiveCurrency), QStringLiteral("n $"));
        QCOMPARE(texto(de->months[0]), QStringLiteral("Januar"));
        QCOMPARE(texto(de->weekdays[0]), QStringLiteral("Sonntag"));
        QCOMPARE(texto(de->weekdays[6]), QStringLiteral("Samstag"));
        QCOMPARE(de->firstDayOfWeek, 2);
    }

    void mexicanNumbersHaveAPoint() {
        const vbs::Locale* const mx = locales_.locale(2058);
        QVERIFY(mx != nullptr);
        QCOMPARE(mx->decimal, u'.');
        QCOMPARE(texto(mx->months[8]), QStringLiteral("septiembre"));
    }

    void swedishDatesBeginWithTheYear() {
        const vbs::Locale* const sv = locales_.locale(1053);
        QVERIFY(sv != nullptr);
        QCOMPARE(sv->dateOrder, vbs::DateOrder::YearMonthDay);
    }

    void yearsAreWrittenInFullAndZonesNever() {
        for (const int id : {1031, 1036, 1040, 1046, 2058, 11274, 1053, 1041, 2070, 4108}) {
            const vbs::Locale* const l = locales_.locale(id);
            QVERIFY2(l != nullptr, qPrintable(QString::number(id)));
            QVERIFY2(texto(l->shortDate).contains(QStringLiteral("yyyy")) || texto(l->shortDate).count(u'y') == 1,
                     qPrintable(texto(l->shortDate)));
            QVERIFY2(!texto(l->longTime).remove(QStringLiteral("tt")).contains(u't'), qPrintable(texto(l->longTime)));
        }
    }

    void unknownNumberIsNull() {
        QCOMPARE(locales_.locale(9999999), nullptr);
        QCOMPARE(locales_.locale(-1), nullptr);
    }

    void factsStayWhereTheyAre() { QCOMPARE(locales_.locale(1031), locales_.locale(1031)); }

    void usersOwnFactsAreAlwaysThere() {
        const vbs::Locale* const propio = locales_.locale(0);
        QVERIFY(propio != nullptr);
        if (QLocale::system().language() == QLocale::C)
            QCOMPARE(propio->id, 3082);
        QCOMPARE(propio->decimal, decimalSign());
    }

    void theLocaleInForceGivesTheUsersFacts_data() {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<int>("id");
        QTest::newRow("Spain") << QStringLiteral("es_ES") << 3082;
        QTest::newRow("Mexico") << QStringLiteral("es_MX") << 2058;
        QTest::newRow("United States") << QStringLiteral("en_US") << 1033;
        QTest::newRow("Brazil") << QStringLiteral("pt_BR") << 1046;
        QTest::newRow("Turkey") << QStringLiteral("tr_TR") << 1055;
        QTest::newRow("Japan") << QStringLiteral("ja_JP") << 1041;
    }
    void theLocaleInForceGivesTheUsersFacts() {
        QFETCH(QString, nombre);
        QFETCH(int, id);
        QLocale::setDefault(QLocale(nombre));
        LocalesQt locales;
        QCOMPARE(locales.locale(0)->id, id);
        QCOMPARE(locales.locale(0)->decimal, decimalSign());
    }

    void scriptChoosesItsLocale() {
        HostScript host(nullptr, true);
        vbs::ScriptControl motor(host);
        QVERIFY(motor.addCode("SetLocale 1031\r\nIf MonthName(1) <> \"Januar\" Then Err.Raise 5\r\n"
                              "If CStr(1.5) <> \"1,5\" Then Err.Raise 5\r\nSetLocale 2058\r\n"
                              "If CStr(1.5) <> \"1.5\" Then Err.Raise 5"));
        QVERIFY(!motor.addCode("SetLocale 9999"));
        QCOMPARE(motor.error().number, 447);
    }
};

QTEST_MAIN(TestLocaleQt)
#include "LocaleQtTest.moc"
