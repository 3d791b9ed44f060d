#include "platform/vbscript/value/Locale.h"

namespace vbs {

namespace {

Locale spanish() {
    Locale l;
    l.months = {u"enero", u"febrero", u"marzo",      u"abril",   u"mayo",      u"junio",
                u"julio", u"agosto",  u"septiembre", u"octubre", u"noviembre", u"diciembre"};
    l.shortMonths = {u"ene", u"feb", u"mar", u"abr", u"may", u"jun", u"jul", u"ago", u"sep", u"oct", u"nov", u"dic"};
    l.weekdays = {u"domingo", u"lunes", u"martes", u"miércoles", u"jueves", u"viernes", u"sábado"};
    l.shortWeekdays = {u"dom", u"lun", u"mar", u"mié", u"jue", u"vie", u"sáb"};
    return l;
}

Locale english(int id) {
    Locale l;
    l.id = id;
    l.decimal = u'.';
    l.thousands = u',';
    l.currencySymbol = id == 2057 ? u"£" : u"$";
    l.positiveCurrency = u"$n";
    l.negativeCurrency = id == 2057 ? u"-$n" : u"($n)";
    l.dateOrder = id == 2057 ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
    l.shortDate = id == 2057 ? u"dd/MM/yyyy" : u"M/d/yyyy";
    l.longDate = id == 2057 ? u"dd MMMM yyyy" : u"dddd, MMMM d, yyyy";
    l.shortTime = id == 2057 ? u"HH:mm" : u"h:mm tt";
    l.longTime = id == 2057 ? u"HH:mm:ss" : u"h:mm:ss tt";
    l.am = u"AM";
    l.pm = u"PM";
    l.months = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                u"July",    u"August",   u"September", u"October", u"November", u"December"};
    l.shortMonths = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    l.weekdays = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
    l.shortWeekdays = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    l.firstDayOfWeek = id == 2057 ? 2 : 1;
    return l;
}

} // namespace

const Locale* builtinLocale(int id) {
    static const Locale es = spanish();
    static const Locale us = english(1033);
    static const Locale uk = english(2057);
    switch (id) {
    case 0:
    case 1024:
    case 1034:
    case 2048:
    case 3082:
        return &es;
    case 1033:
        return &us;
    case 2057:
        return &uk;
    default:
        return nullptr;
    }
}

} // namespace vbs
