// The one locale of a program: what the system names, and Spanish (Spain) where it names none (no setting, "C",
// "POSIX").
//
//     useSystemLocale();      // first of all in main(); from then on QLocale() is that locale
#pragma once

#include <QLocale>

// Reads the environment as the C library does: LC_ALL, then the variable of a category, then LANG.
QLocale systemLocale();

// Makes systemLocale() what QLocale() gives.
void useSystemLocale();

// How QLocale() writes fractions.
char16_t decimalSign();
