// From frame texts to assignments: slices, spacing, splitting, validity, listing and faults.
#include "serial/InterpreteTramas.h"

#include "EntornoFalso.h"

#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

class FrameInterpretation : public testing::Test {
protected:
    AjustesFalsos configuracion;
    MotorFalso motor;
    InterpreteTramas interprete{MarcaFin(), configuracion, motor};
};

TEST_F(FrameInterpretation, readingBecomesFiveAssignmentLines) {
    const std::string leido = interprete.interpretarTrama("240517123\n\r");
    EXPECT_EQ(motor.textos, Textos{"AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\r\nVALIDEZ = 2\r\n"});
    EXPECT_EQ(leido, "240517123\r\n");
}

TEST_F(FrameInterpretation, frameTextOfTheReceiveLoopKeepsTheFirstEndCharacter) {
    const std::string leido = interprete.interpretarTrama("240517123\n\n\r");
    EXPECT_EQ(motor.textos, Textos{"AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\n\r\nVALIDEZ = 2\r\n"});
    EXPECT_EQ(leido, "240517123\n\r\n");
}

TEST_F(FrameInterpretation, twoReadingsGiveTwoAssignmentTextsInOrder) {
    const std::string leido = interprete.interpretarTrama("240517123\n\r240518456\n\r");
    ASSERT_EQ(motor.textos.size(), 2u);
    EXPECT_NE(motor.textos[0].find("ID = 123\r\n"), std::string::npos);
    EXPECT_NE(motor.textos[1].find("ID = 456\r\n"), std::string::npos);
    EXPECT_EQ(leido, "240517123\r\n240518456\r\n");
}

TEST_F(FrameInterpretation, readingAfterALeftOverEndCharacterIsShiftedByOne) {
    interprete.interpretarTrama("\r240517123\n\n\r");
    EXPECT_EQ(motor.textos, Textos{"AA =\r2\r\nMM =40\r\nDD = 51\r\nID = 7123\n\r\nVALIDEZ = 2\r\n"});
}

TEST_F(FrameInterpretation, readingWithoutEndMarkIsInterpretedToo) {
    const std::string leido = interprete.interpretarTrama("2405171");
    EXPECT_EQ(leido, "2405171\r\n");
}

TEST_F(FrameInterpretation, shortReadingsGiveShortOrEmptyFields) {
    const auto sinValidez = [](std::string_view lectura) { return InterpreteTramas::asignaciones(lectura, "2"); };
    const std::string fin = "\r\nVALIDEZ = 2\r\n";
    EXPECT_EQ(sinValidez("1"), "AA =1\r\nMM =\r\nDD = \r\nID = " + fin);
    EXPECT_EQ(sinValidez("12"), "AA =12\r\nMM =\r\nDD = \r\nID = " + fin);
    EXPECT_EQ(sinValidez("123"), "AA =12\r\nMM =3\r\nDD = \r\nID = " + fin);
    EXPECT_EQ(sinValidez("12345"), "AA =12\r\nMM =34\r\nDD = 5\r\nID = " + fin);
    EXPECT_EQ(sinValidez("123456"), "AA =12\r\nMM =34\r\nDD = 56\r\nID = " + fin);
    EXPECT_EQ(sinValidez("1234567"), "AA =12\r\nMM =34\r\nDD = 56\r\nID = 7" + fin);
}

TEST_F(FrameInterpretation, onlyEndMarksGiveNoAssignmentAndAnEmptyListing) {
    const std::string leido = interprete.interpretarTrama("\n\r\n\r\n\r");
    EXPECT_TRUE(motor.textos.empty());
    EXPECT_EQ(leido, "");
}

TEST_F(FrameInterpretation, emptyFrameTextGivesAnEmptyListing) {
    const std::string leido = interprete.interpretarTrama("");
    EXPECT_TRUE(motor.textos.empty());
    EXPECT_EQ(leido, "");
}

TEST_F(FrameInterpretation, markOfLettersSplitsInEitherCase) {
    InterpreteTramas conLetras{MarcaFin('x', 'y'), configuracion, motor};
    const std::string leido = conLetras.interpretarTrama("1111111Xy2222222xY");
    EXPECT_EQ(leido, "1111111\r\n2222222\r\n");
}

TEST_F(FrameInterpretation, overlappingMarksSplitFromTheLeft) {
    InterpreteTramas iguales{MarcaFin(10, 10), configuracion, motor};
    const std::string leido = iguales.interpretarTrama("A\n\n\n");
    EXPECT_EQ(leido, "A\r\n\n\r\n");
}

TEST_F(FrameInterpretation, engineGetsUtf8AndTheListStaysAnsi) {
    const std::string leido = interprete.interpretarTrama("240517a\xF1o\x80\n\r");
    ASSERT_EQ(motor.textos.size(), 1u);
    EXPECT_NE(motor.textos[0].find("ID = año€\r\n"), std::string::npos);
    EXPECT_EQ(leido, "240517a\xF1o\x80\r\n");
}

TEST_F(FrameInterpretation, validityIsReadAnewForEachFrameText) {
    interprete.interpretarTrama("2405171");
    configuracion.valores["RS232_Cant_Intervalos_Validez"] = "7";
    interprete.interpretarTrama("2405171");
    EXPECT_NE(motor.textos[0].find("VALIDEZ = 2\r\n"), std::string::npos);
    EXPECT_NE(motor.textos[1].find("VALIDEZ = 7\r\n"), std::string::npos);
}

TEST_F(FrameInterpretation, validityIsReadOnceForAllReadingsOfAFrameText) {
    interprete.interpretarTrama("2405171\n\r2405172\n\r");
    EXPECT_EQ(configuracion.leidas, Textos{"RS232_Cant_Intervalos_Validez"});
}

TEST_F(FrameInterpretation, validityIsWrittenAsADecimalText) {
    for (const auto& [valor, texto] :
         {std::pair{"2,5", "2.5"}, {" 3 ", "3"}, {"1E3", "1000"}, {"-1", "-1"}, {"007", "7"}}) {
        configuracion.valores["RS232_Cant_Intervalos_Validez"] = valor;
        interprete.interpretarTrama("2405171");
        EXPECT_NE(motor.textos.back().find(std::string("VALIDEZ = ") + texto + "\r\n"), std::string::npos)
            << motor.textos.back();
    }
}

TEST_F(FrameInterpretation, validityThatIsNoNumberIsAFaultBeforeAnyAssignment) {
    configuracion.valores["RS232_Cant_Intervalos_Validez"] = "mucho";
    try {
        interprete.interpretarTrama("2405171\n\r2405172\n\r");
        FAIL() << "no fault";
    } catch (const LecturaRechazada& rechazo) {
        EXPECT_EQ(rechazo.lectura(), "2405171");
        EXPECT_STREQ(rechazo.what(), "No coinciden los tipos");
    }
    EXPECT_TRUE(motor.textos.empty());
}

TEST_F(FrameInterpretation, faultOfTheEngineNamesTheReadingAndStopsThoseAfterIt) {
    motor.rechaza = "ID = mal";
    try {
        interprete.interpretarTrama("2405171\n\r240517mal\n\r2405173\n\r");
        FAIL() << "no fault";
    } catch (const LecturaRechazada& rechazo) {
        EXPECT_EQ(rechazo.lectura(), "240517mal");
        EXPECT_STREQ(rechazo.what(), "Error de sintaxis");
    }
    EXPECT_EQ(motor.textos.size(), 1u);
}

TEST_F(FrameInterpretation, everyByteReachesTheEngine) {
    for (int codigo = 0; codigo < 256; ++codigo) {
        const std::string lectura = "240517" + std::string(1, static_cast<char>(codigo));
        EXPECT_EQ(interprete.interpretarTrama(lectura), lectura + "\r\n");
    }
    EXPECT_EQ(motor.textos.size(), 256u);
}

} // namespace
