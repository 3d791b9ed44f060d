// The facts of a country for the script engine, from the window system's own data.
#pragma once

#include "platform/vbscript/Host.h"

#include <map>

class LocalesQt {
public:
    // Facts of a locale number (0: those of QLocale()), or null for a number that is not known. Valid as long as this
    // object.
    const vbs::Locale* locale(int id);

private:
    std::map<int, vbs::Locale> hechos_;
};
