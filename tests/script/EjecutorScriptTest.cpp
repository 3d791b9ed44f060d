#include "script/EjecutorScript.h"

#include "AjustesFalsos.h"
#include "CarpetaTemporal.h"
#include "EventosFalsos.h"
#include "RelojDePrueba.h"
#include "script/MotorConMW.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <string_view>

using namespace std::chrono_literals;

namespace {

// A runner whose window only notes what it is told: "+" a green pass, "-" a red one, "e" pending events,
// ">" a pass put off.
class Runner : public testing::Test, protected EntornoScript {
protected:
    Runner() {
        station_.esclavos.crearEsclavo(1, 0, 99);
        events_.alPasarEventos = [this] {
            told_ += 'e';
            if (const auto action = onEvents_)
                action();
        };
    }

    bool ejecucionActiva() const override { return active_; }
    void mostrarResultado(bool good) override {
        told_ += good ? '+' : '-';
        if (onResult_)
            onResult_();
    }
    void aplazarPasada() override { told_ += '>'; }

    void script(std::string_view text) { escribirArchivo(file_, text); }
    // What the window is told by one pass.
    std::string pass() {
        told_.clear();
        runner_.ejecutarScript();
        return told_;
    }
    double at(std::size_t address) const { return station_.registro(1, address); }

    CarpetaTemporal folder_;
    std::filesystem::path file_ = folder_ / "codigoTrelvano.txt";
    MotorConMW station_;
    bool active_ = true;
    std::string told_;
    std::function<void()> onEvents_;
    std::function<void()> onResult_;
    EventosFalsos events_;
    AjustesFalsos settings_;
    Modulo_Codigo code_{settings_, folder_.ruta()};
    RelojDePrueba clock_;
    EjecutorScript runner_{station_.motor, code_, *this, events_, clock_};
};

} // namespace

TEST_F(Runner, aPassRunsTheScriptThenColoursThenLetsEventsPassThreeTimes) {
    script("mw.escribir 1, 5, 42");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 42);
}

TEST_F(Runner, aMissingFileIsAGoodPass) {
    EXPECT_EQ(pass(), "+eee");
}

TEST_F(Runner, aFolderInPlaceOfTheFileIsAGoodPass) {
    std::filesystem::create_directory(file_);
    EXPECT_EQ(pass(), "+eee");
}

TEST_F(Runner, whatCannotBeAScriptIsARedPass) {
    script(std::string("MZ\x90\0\x03\xFF\xFE(((\0\0", 13));
    EXPECT_EQ(pass(), "-eee");
}

TEST_F(Runner, nothingRunsWhileTheBoxIsNotTicked) {
    script("mw.escribir 1, 5, 42");
    active_ = false;
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 0);
}

TEST_F(Runner, anOldErrorIsClearedEvenWhileTheBoxIsNotTicked) {
    script("x = ");
    EXPECT_EQ(pass(), "-eee");
    active_ = false;
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(runner_.ultimoError().number, 0);
}

TEST_F(Runner, aSyntaxErrorIsRedOnEveryPassUntilTheFileIsCorrected) {
    script("mw.escribir 1, 5, 42\r\nIf x Then\r\n");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(pass(), "-eee");
    EXPECT_EQ(at(5), 0) << "nothing of the text has run";
    script("mw.escribir 1, 5, 43");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 43);
}

TEST_F(Runner, aRunTimeErrorIsRedAndKnownWithItsLine) {
    script("mw.escribir 1, 5, 1\r\nmw.escribir 99, 0, 1\r\nmw.escribir 1, 6, 1");
    EXPECT_EQ(pass(), "-eee");
    EXPECT_EQ(runner_.ultimoError().number, 9);
    EXPECT_EQ(runner_.ultimoError().line, 2U);
    EXPECT_EQ(at(5), 1) << "what ran before stays";
    EXPECT_EQ(at(6), 0);
}

TEST_F(Runner, globalsKeepTheirValuesFromPassToPass) {
    script("mw.escribir 1, 5, x\r\nx = x + 1");
    for (int i = 0; i < 5; ++i) {
        pass();
        EXPECT_EQ(at(5), i);
    }
}

TEST_F(Runner, theFileIsReadOnEveryPassAndProceduresAreDefinedAnew) {
    script("Function f : f = 1 : End Function\r\nmw.escribir 1, 5, f + x\r\nx = 10");
    pass();
    EXPECT_EQ(at(5), 1);
    script("Function f : f = 2 : End Function\r\nmw.escribir 1, 5, f + x");
    pass();
    EXPECT_EQ(at(5), 12);
}

TEST_F(Runner, anEndlessLoopIsStoppedAndRedAndTheNextPassIsGood) {
    station_.motor.setTimeout(std::chrono::milliseconds(50));
    script("On Error Resume Next\r\nDo : mw.escribir 1, 5, 7 : Loop");
    EXPECT_EQ(pass(), "-eee");
    script("mw.escribir 1, 5, 8");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 8);
}

TEST_F(Runner, onlyTimerOneIsAPass) {
    script("n = n + 1 : mw.escribir 1, 5, n");
    for (const double id : {0.0, 2.0, 1.0000001, -1.0})
        runner_.ejecucion_timers(id);
    EXPECT_EQ(told_, "");
    EXPECT_EQ(at(5), 0);
    runner_.ejecucion_timers(1);
    EXPECT_EQ(told_, "+eee");
    EXPECT_EQ(at(5), 1);
}

TEST_F(Runner, aPassAskedForWithinAPassIsDropped) {
    script("n = n + 1 : mw.escribir 1, 5, n");
    onResult_ = [this] { runner_.ejecutarScript(); };
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 1);
}

TEST_F(Runner, aPassThatAScriptAsksForWithinAPassIsDropped) {
    script("n = n + 1 : mw.escribir 1, 5, n");
    onResult_ = [this] { runner_.ejecucionPedidaPorScript(1); };
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 1);
}

TEST_F(Runner, aPassThatAScriptAsksForOutsideAPassWaitsForItsEnd) {
    runner_.ejecucionPedidaPorScript(1);
    EXPECT_EQ(told_, ">");
    runner_.ejecucionPedidaPorScript(2);
    EXPECT_EQ(told_, ">");
}

TEST_F(Runner, aPassAskedForInsideAHandlerIsPutOff) {
    script("mw.escribir 1, 5, 42");
    events_.fondo = false;
    EXPECT_EQ(pass(), ">");
    EXPECT_EQ(at(5), 0);
    events_.fondo = true;
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 42);
}

TEST_F(Runner, thePassIsOverBeforeEventsPass) {
    script("n = n + 1 : mw.escribir 1, 5, n");
    onEvents_ = [this] {
        onEvents_ = nullptr;
        runner_.ejecutarScript(); // as from the loop of a box that a handler has opened
    };
    EXPECT_EQ(pass(), "+e+eeeee");
    EXPECT_EQ(at(5), 2);
}

TEST_F(Runner, aPassThatIsCutShortByAnExceptionDoesNotLockTheNextOut) {
    script("mw.escribir 1, 5, 42");
    onResult_ = [] { throw std::bad_alloc(); };
    EXPECT_THROW(pass(), std::bad_alloc);
    onResult_ = nullptr;
    EXPECT_EQ(pass(), "+eee");
}

TEST_F(Runner, theBoxUntickedDuringAPassKeepsTheNextFromRunning) {
    script("n = n + 1 : mw.escribir 1, 5, n");
    onEvents_ = [this] { active_ = false; };
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 1);
}

TEST_F(Runner, windows1252AndUtf8TextsAreTheSameToTheScript) {
    script("mw.escribir 1, 5, Len(\"a\xF1o\") : mw.escribir 1, 6, AscW(Mid(\"a\xF1o\", 2, 1))");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 3);
    EXPECT_EQ(at(6), 0xF1);
    script("\xEF\xBB\xBFmw.escribir 1, 5, Len(\"\u00F1and\u00FA\")");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 5);
}

TEST_F(Runner, passesAreCountedWithTheirTimes) {
    script("x = 1");
    clock_.porMirada = 7ms;
    pass();
    clock_.porMirada = 2ms;
    pass();
    EXPECT_EQ(runner_.pasadas().cuantas, 2U);
    EXPECT_EQ(runner_.pasadas().ultima, 2ms);
    EXPECT_EQ(runner_.pasadas().maxima, 7ms);
    active_ = false;
    pass();
    EXPECT_EQ(runner_.pasadas().cuantas, 2U);
}

TEST_F(Runner, echoNeverStopsAPass) {
    script("Dim a(3) : WScript.Echo a, Nothing, Null, Empty : mw.escribir 1, 5, 1");
    EXPECT_EQ(pass(), "+eee");
    EXPECT_EQ(at(5), 1);
    EXPECT_EQ(runner_.consola().lineas().size(), 1U);
}

TEST_F(Runner, consoleIsThereOnlyForScriptsWithoutAWScriptOfTheirOwn) {
    for (const char* text :
         {"WScript = 5 : mw.escribir 1, 5, WScript", "Dim WScript : WScript = 5 : mw.escribir 1, 5, WScript",
          "Function WScript : WScript = 5 : End Function : mw.escribir 1, 5, WScript",
          "Const WScript = 5 : mw.escribir 1, 5, WScript",
          "For Each WScript In Array(4, 5) : mw.escribir 1, 5, WScript : Next"}) {
        script("WScript.Echo 1 : mw.escribir 1, 5, 0");
        EXPECT_EQ(pass(), "+eee") << text;
        script(text);
        EXPECT_EQ(pass(), "+eee") << text << runner_.ultimoError().number;
        EXPECT_EQ(at(5), 5) << text;
    }
    EXPECT_EQ(runner_.consola().lineas().size(), 5U);
}

TEST_F(Runner, echoFromAnInstanceThatEndsWithTheEngineIsHarmless) {
    script("Class C : Sub Class_Terminate : WScript.Echo \"fin\" : End Sub : End Class : Set c1 = New C");
    EXPECT_EQ(pass(), "+eee");
}

TEST_F(Runner, theLastErrorStaysWhenLaterPassesAreGood) {
    EXPECT_FALSE(runner_.pasadas().fallaAhora());
    script("x = 1\r\ny = x / 0");
    pass();
    EXPECT_TRUE(runner_.pasadas().fallaAhora());
    script("x = 1");
    pass();
    EXPECT_FALSE(runner_.pasadas().fallaAhora());
    EXPECT_EQ(runner_.pasadas().error.number, 11);
    EXPECT_EQ(runner_.pasadas().error.line, 2U);
    EXPECT_EQ(runner_.pasadas().pasadaConError, 1U);
}
