#include "script/MotorConMW.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace {

// "mw" on a store whose slave 1 has registers 0..99.
class ScriptObjectMw : public testing::Test {
protected:
    ScriptObjectMw() { station_.esclavos.crearEsclavo(1, 0, 99); }

    // Runs the text, which must not fail.
    void run(std::string_view text) { EXPECT_EQ(station_.ejecutar(text), 0) << "line " << station_.motor.error().line; }
    int failure(std::string_view text) { return station_.ejecutar(text); }

    // The value of an expression that gives a number, by way of a register.
    double value(const std::string& expression) {
        run("mw.escribir 1, 99, " + expression);
        return at(99);
    }
    double at(std::size_t address, int slave = 1) const { return station_.registro(slave, address); }

    MotorConMW station_;
};

} // namespace

TEST_F(ScriptObjectMw, escribirTakesZeroTo65535AndDropsTheRest) {
    run("mw.escribir 1, 5, 65535");
    EXPECT_EQ(at(5), 65535);
    run("mw.escribir 1, 5, 65536 : mw.escribir 1, 5, -1");
    EXPECT_EQ(at(5), 65535);
    run("mw.escribir 1, 5, 0");
    EXPECT_EQ(at(5), 0);
}

TEST_F(ScriptObjectMw, escribirKeepsFractions) {
    run("mw.escribir 1, 5, 12.5");
    EXPECT_EQ(at(5), 12.5);
}

TEST_F(ScriptObjectMw, escribirC2StoresTwosComplement) {
    run("mw.escribir_C2 1, 5, -1 : mw.escribir_C2 1, 6, -32768 : mw.escribir_C2 1, 7, 40000");
    EXPECT_EQ(at(5), 65535);
    EXPECT_EQ(at(6), 32768);
    EXPECT_EQ(at(7), 40000);
}

TEST_F(ScriptObjectMw, leerOfANeverUsedSlaveCreatesIt) {
    EXPECT_EQ(value("mw.leer(7, 0)"), 0);
    EXPECT_TRUE(station_.esclavos.existe(7));
    EXPECT_EQ(at(99, 7), 0);
    EXPECT_EQ(at(100, 7), -1);
}

TEST_F(ScriptObjectMw, leerBeyondTheTableGrowsItByTenMore) {
    EXPECT_EQ(value("mw.leer(1, 250) + mw.leer(1, 250)"), 0);
    EXPECT_EQ(at(260), 0);
    EXPECT_EQ(at(261), -1);
}

TEST_F(ScriptObjectMw, bitNumberOfLeerIsOptional) {
    run("mw.escribir 1, 5, 8");
    EXPECT_EQ(value("mw.leer(1, 5, 3)"), 1);
    EXPECT_EQ(value("mw.leer(1, 5, 2)"), 0);
    EXPECT_EQ(value("mw.leer(1, 5, -1)"), 8);
    EXPECT_EQ(value("mw.leer(1, 5)"), 8);
}

TEST_F(ScriptObjectMw, leftOutBitNumberMeansTheWholeRegister) {
    run("mw.escribir 1, 5, 8");
    EXPECT_EQ(value("mw.leer(1, 5, )"), 8);
}

TEST_F(ScriptObjectMw, leerGivesADouble) {
    EXPECT_EQ(value("VarType(mw.leer(1, 5))"), 5);
    EXPECT_EQ(value("VarType(mw.leer(1, 5, 3))"), 5);
}

TEST_F(ScriptObjectMw, writersGiveEmpty) {
    EXPECT_EQ(value("VarType(mw.escribir(1, 5, 1))"), 0);
    EXPECT_EQ(value("VarType(mw.escribir_C2(1, 5, 1))"), 0);
    EXPECT_EQ(value("VarType(mw.escribir_bit(1, 5, 1, 1))"), 0);
    EXPECT_EQ(value("VarType(mw.darValorEsclavoLogico(1, 5, 1))"), 0);
    EXPECT_EQ(value("VarType(mw.ejecucion_timers(2))"), 0);
}

TEST_F(ScriptObjectMw, escribirBitSetsAndClears) {
    run("mw.escribir 1, 5, 8 : mw.escribir_bit 1, 5, 0, 1");
    EXPECT_EQ(at(5), 9);
    run("mw.escribir_bit 1, 5, 3, 0");
    EXPECT_EQ(at(5), 1);
}

TEST_F(ScriptObjectMw, escribirBitIgnoresWhatMakesNoSense) {
    run("mw.escribir 1, 5, 8");
    run("mw.escribir_bit 1, 5, 16, 1 : mw.escribir_bit 1, 5, 2, 2 : mw.escribir_bit 1, 5, -1, 1 : "
        "mw.escribir_bit 1, 5, 2, -1");
    EXPECT_EQ(at(5), 8);
}

TEST_F(ScriptObjectMw, singleIntAdds65536BelowZero) {
    EXPECT_EQ(value("mw.SINGLEINT(-1)"), 65535);
    EXPECT_EQ(value("mw.SINGLEINT(5)"), 5);
    EXPECT_EQ(value("-mw.SINGLEINT(-70000)"), 4464);
    EXPECT_EQ(value("mw.SINGLEINT(70000) - 60000"), 10000);
}

TEST_F(ScriptObjectMw, singleIntLeavesItsArgumentAsItWas) {
    run("x = -3 : y = mw.SINGLEINT(x)");
    EXPECT_EQ(value("-x"), 3);
    EXPECT_EQ(value("y"), 65533);
}

TEST_F(ScriptObjectMw, nBitGivesAnInteger) {
    EXPECT_EQ(value("mw.NBit(8, 3)"), 1);
    EXPECT_EQ(value("mw.NBit(8, 2)"), 0);
    EXPECT_EQ(value("VarType(mw.NBit(8, 3))"), 2);
}

TEST_F(ScriptObjectMw, setearBitGivesADouble) {
    EXPECT_EQ(value("mw.SetearBIT_YDevolverPalabra(8, 0, 1)"), 9);
    EXPECT_EQ(value("mw.SetearBIT_YDevolverPalabra(9, 3, 0)"), 1);
    EXPECT_EQ(value("VarType(mw.SetearBIT_YDevolverPalabra(8, 0, 1))"), 5);
}

TEST_F(ScriptObjectMw, namesAreKnownInAnyCase) {
    run("MW.ESCRIBIR 1, 5, 3 : Mw.Escribir_c2 1, 6, mw.singleint(-2)");
    EXPECT_EQ(at(5), 3);
    EXPECT_EQ(at(6), 65534);
}

TEST_F(ScriptObjectMw, argumentsAreConvertedAsTheLanguageDoes) {
    run("x = \"5\" : mw.escribir \"1\", x, \"77\" : mw.escribir 1, 6, True + 2 : mw.escribir 1, 7, Empty");
    EXPECT_EQ(at(5), 77);
    EXPECT_EQ(at(6), 1);
    EXPECT_EQ(at(7), 0);
}

TEST_F(ScriptObjectMw, whatIsNoNumberRaises13) {
    EXPECT_EQ(failure("mw.escribir 1, \"cinco\", 1"), 13);
    EXPECT_EQ(failure("mw.escribir 1, 5, Nothing"), 91);
    EXPECT_EQ(failure("mw.escribir 1, 5, Null"), 94);
}

TEST_F(ScriptObjectMw, addressesAreRoundedHalvesToEven) {
    run("mw.escribir 1, 2.5, 11 : mw.escribir 1, 3.5, 22");
    EXPECT_EQ(at(2), 11);
    EXPECT_EQ(at(4), 22);
}

TEST_F(ScriptObjectMw, writeToAMissingSlaveRaisesNineAtItsLine) {
    EXPECT_EQ(failure("x = 1\r\nmw.escribir 7, 0, x"), 9);
    EXPECT_EQ(station_.motor.error().line, 2U);
    EXPECT_FALSE(station_.esclavos.existe(7));
}

TEST_F(ScriptObjectMw, writeBeyondTheTableRaisesNineAndGrowsNothing) {
    EXPECT_EQ(failure("mw.escribir 1, 100, 1"), 9);
    EXPECT_EQ(failure("mw.darValorEsclavoLogico 1, -1, 1"), 9);
    EXPECT_EQ(at(100), -1);
}

TEST_F(ScriptObjectMw, droppedValueRaisesNothingEvenWithoutATable) {
    run("mw.escribir 7, 0, 65536");
}

TEST_F(ScriptObjectMw, conversionsOutside32BitsRaiseSix) {
    EXPECT_EQ(failure("x = mw.NBit(3000000000, 1)"), 6);
    EXPECT_EQ(failure("x = mw.NBit(1, 40)"), 6);
    EXPECT_EQ(failure("x = mw.NBit(1, 40000)"), 6) << "the bit is a 16-bit integer";
    EXPECT_EQ(failure("x = mw.SetearBIT_YDevolverPalabra(3000000000, 1, 1)"), 6);
    EXPECT_EQ(failure("mw.escribir 1, 1e12, 1"), 6);
}

TEST_F(ScriptObjectMw, tablesThatWouldNotFitRaiseSeven) {
    EXPECT_EQ(failure("x = mw.leer(1, 2000000000)"), 7);
    EXPECT_EQ(failure("x = mw.leer(40000, 0)"), 7);
    EXPECT_EQ(at(99), 0) << "the table stays";
}

TEST_F(ScriptObjectMw, aScriptCanCatchTheErrorsOfTheStore) {
    run("On Error Resume Next\r\nmw.escribir 7, 0, 1\r\nn = Err.Number\r\nOn Error GoTo 0\r\nmw.escribir 1, 5, n");
    EXPECT_EQ(at(5), 9);
}

TEST_F(ScriptObjectMw, wrongNumberOfArgumentsRaises450) {
    EXPECT_EQ(failure("x = mw.leer(1)"), 450);
    EXPECT_EQ(failure("x = mw.leer(1, 2, 3, 4)"), 450);
    EXPECT_EQ(failure("mw.escribir 1, 2"), 450);
}

TEST_F(ScriptObjectMw, onlyThePublicOperationsAreThere) {
    EXPECT_EQ(failure("mw.ampliarTablaMW 1, 0, 500"), 438);
    EXPECT_EQ(failure("mw.crearEsclavo 9, 0, 99"), 438);
    EXPECT_EQ(failure("mw.Caption = \"x\""), 438);
    EXPECT_FALSE(station_.esclavos.existe(9));
}

TEST_F(ScriptObjectMw, operationsCannotBeAssignedTo) {
    EXPECT_NE(failure("mw.leer(1, 5) = 3"), 0);
    EXPECT_EQ(at(5), 0);
}

TEST_F(ScriptObjectMw, isAnObjectThatCanBePassedOn) {
    run("Sub pon(ventana, valor) : ventana.escribir 1, 5, valor : End Sub\r\nSet otra = mw\r\npon otra, 42");
    EXPECT_EQ(at(5), 42);
    EXPECT_EQ(value("Abs(IsObject(mw))"), 1);
}

TEST_F(ScriptObjectMw, ejecucionTimersHandsItsNumberOn) {
    run("mw.ejecucion_timers 1 : mw.ejecucion_timers 2.5");
    EXPECT_EQ(station_.timers, (std::vector<double>{1, 2.5}));
}
