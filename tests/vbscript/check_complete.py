#!/usr/bin/python3
"""Fails when an intrinsic function or a statement of VBScript has no test script of its own name.

    check_complete.py CORPUS-FOLDER

The names are those of the language reference, so that what the engine lacks is noticed too.
"""

import pathlib
import sys

FUNCTIONS = """
    Abs Array Asc AscB AscW Atn CBool CByte CCur CDate CDbl Chr ChrB ChrW CInt CLng Cos CreateObject CSng CStr Date
    DateAdd DateDiff DatePart DateSerial DateValue Day Escape Eval Exp Filter Fix FormatCurrency FormatDateTime
    FormatNumber FormatPercent GetLocale GetObject GetRef Hex Hour InputBox InStr InStrB InStrRev Int IsArray IsDate
    IsEmpty IsNull IsNumeric IsObject Join LBound LCase Left LeftB Len LenB LoadPicture Log LTrim Mid MidB Minute Month
    MonthName MsgBox Now Oct Replace RGB Right RightB Rnd Round RTrim ScriptEngine ScriptEngineBuildVersion
    ScriptEngineMajorVersion ScriptEngineMinorVersion Second SetLocale Sgn Sin Space Split Sqr StrComp String StrReverse
    Tan Time Timer TimeSerial TimeValue Trim TypeName UBound UCase Unescape VarType Weekday WeekdayName Year
""".split()

STATEMENTS = """
    call class const dim do_loop erase execute execute_global exit_do exit_for exit_function exit_property exit_sub
    for_each for_next function if_block if_single_line let_assignment on_error_goto_0 on_error_resume_next
    option_explicit private property_get property_let property_set public randomize redim redim_preserve rem select_case
    set stop sub while_wend with
""".split()


def missing(folder, names):
    return [name for name in names if not (folder / f"{name.lower()}.vbs").is_file()]


def main():
    corpus = pathlib.Path(sys.argv[1])
    gaps = [f"functions/{name.lower()}.vbs" for name in missing(corpus / "functions", FUNCTIONS)]
    gaps += [f"statements/{name}.vbs" for name in missing(corpus / "statements", STATEMENTS)]
    for gap in gaps:
        print(f"missing: {gap}")
    print(f"{len(FUNCTIONS)} functions and {len(STATEMENTS)} statements, {len(gaps)} without a test script")
    return 1 if gaps else 0


if __name__ == "__main__":
    sys.exit(main())
