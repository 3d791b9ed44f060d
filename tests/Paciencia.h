// How long the tests of windows wait for what is to come: on a machine that does much else five seconds, which is what
// Qt Test waits by itself, can pass before a process has had its turn. Every such test includes this before all else.
#pragma once

#include <QTest>

constexpr int paciencia = 60'000; // milliseconds

#undef QTRY_VERIFY
#define QTRY_VERIFY(expr) QTRY_VERIFY_WITH_TIMEOUT(expr, paciencia)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(expr, message) QTRY_VERIFY2_WITH_TIMEOUT(expr, message, paciencia)
#undef QTRY_COMPARE
#define QTRY_COMPARE(expr, expected) QTRY_COMPARE_WITH_TIMEOUT(expr, expected, paciencia)
