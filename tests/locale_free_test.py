#!/usr/bin/env python3
"""No file of src/ uses a function whose result depends on the C library's locale.

The window system sets that locale to the user's, and then strtod stops at the point and printf writes a comma. Numbers
go through platform/text (std::from_chars and std::to_chars), letters through platform/text/Case.h, and what the user
sees through QLocale.

    locale_free_test.py SOURCE_FOLDER      checks the tree, after it has checked itself on made-up lines
"""
import pathlib
import re
import sys
import unittest

WORDS = (
    # numbers
    "strtod strtof strtold strtol strtoul strtoll strtoull atof atoi atol atoll stod stof stold stoi stol stoul stoll stoull "
    "wcstod scanf fscanf sscanf vsscanf localeconv "
    # letters
    "isalpha isalnum islower isupper isspace isprint ispunct isgraph iscntrl isblank isdigit isxdigit tolower toupper "
    "iswalpha iswalnum iswlower iswupper iswspace towlower towupper strcoll strxfrm wcscoll strcasecmp strncasecmp "
    # characters
    "mbstowcs wcstombs mbrtowc wcrtomb mbtowc wctomb toLocal8Bit fromLocal8Bit "
    # streams and the locale itself
    "setlocale uselocale newlocale stringstream istringstream ostringstream wstringstream"
).split()
BANNED = re.compile(r"(?<![\w.>:])(?:std::|QString::|::)?(" + "|".join(WORDS) + r")\b\s*[(<]|\b(?:std::)?(" +
                    "|".join(w for w in WORDS if w.endswith("stream")) + r")\b|\b(std::locale)\b|\.(toLocal8Bit)\b")
PRINTF = re.compile(r"\b(?:f|s|sn|vsn|vf|d|as)?printf\s*\(")
FLOAT = re.compile(r"%[-+ #0]*[\d*]*(?:\.[\d*]+)?L?[aefgAEFG]|%[-+ #0]*[\d*]*(?:\.[\d*]+)?'")
# date and time with figures alone are the same everywhere; names of months and days are not
STRFTIME = re.compile(r"%[EO]?[aAbBchpPrxX]")
ALLOWED_HEADERS = re.compile(r"#\s*include\s*<(cctype|cwctype|locale|clocale|codecvt|sstream|locale\.h|ctype\.h)>")


def without_comments(text):
    text = re.sub(r"/\*.*?\*/", lambda m: "\n" * m[0].count("\n"), text, flags=re.S)
    return re.sub(r"(?<![:\"])//.*", "", text)


def violations(text):
    found = []
    for number, line in enumerate(without_comments(text).split("\n"), start=1):
        code = re.sub(r'"(?:\\.|[^"\\])*"', '""', line)
        for match in BANNED.finditer(code):
            found.append(f"{number}: {next(g for g in match.groups() if g)} depends on the locale")
        if ALLOWED_HEADERS.search(line):
            found.append(f"{number}: {ALLOWED_HEADERS.search(line)[1]} depends on the locale")
    for call in PRINTF.finditer(without_comments(text)):
        statement = without_comments(text)[call.start():].split(";", 1)[0]
        if FLOAT.search(statement.replace("%%", "")):
            found.append(f"{without_comments(text)[:call.start()].count(chr(10)) + 1}: printf of a real number")
    for call in re.finditer(r"\b(?:strftime|put_time)\s*\(", without_comments(text)):
        statement = without_comments(text)[call.start():].split(";", 1)[0]
        if STRFTIME.search(statement):
            found.append(f"{without_comments(text)[:call.start()].count(chr(10)) + 1}: strftime of a name")
    return found


class Rules(unittest.TestCase):
    def test_banned_functions_are_found(self):
        for line in ("x = strtod(p, nullptr);", "x = std::stod(text);", "std::transform(a, b, c, ::tolower);"
                     .replace("::tolower)", "::tolower(x))"), "if (std::isalpha(c))", "std::ostringstream out;",
                     "std::setlocale(LC_ALL, \"\");", "std::locale::global(x);", "text.toLocal8Bit()", "#include <cctype>",
                     "sscanf(text, \"%d\", &n);", 'std::printf("%.3f", x);', 'std::fprintf(stderr,\n  "%s %g", a, b);',
                     'std::strftime(t, n, "%A", &h);'):
            self.assertEqual(len(violations(line)), 1, line)

    def test_sound_lines_are_left_alone(self):
        for line in ("x = toLower(c);", "text::toUpper(c)", "// strtod(p)", '"strtod(p)"', "std::to_string(5)", "object.toupper(x)",
                     'std::fprintf(stderr, "%s: %d %%f", a, b);', 'std::strftime(t, n, "%d/%m/%Y %H:%M:%S", &h);',
                     "vbs::toLower(x)", "mistrtod(x)"):
            self.assertEqual(violations(line), [], line)


def main():
    tests = unittest.defaultTestLoader.loadTestsFromTestCase(Rules)
    if not unittest.TextTestRunner(verbosity=0).run(tests).wasSuccessful():
        return 1
    src = pathlib.Path(sys.argv[1])
    files = sorted(p for p in src.rglob("*") if p.suffix in (".cpp", ".h"))
    found = [f"{file.relative_to(src)}:{v}" for file in files for v in violations(file.read_text(encoding="utf-8"))]
    print("\n".join(found) or f"{len(files)} files do not depend on the locale")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
