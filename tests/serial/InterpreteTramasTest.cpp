// From frame texts to assignments: slices, spacing, splitting, validity, listing and faults.
#include "serial/InterpreteTramas.h"

#include "EntornoFalso.h"
#include "registers/Palabra.h"

#include <gtest/gtest.h>

namespace {

class SalidaFalsa final : public SalidaTramas {
public:
    std::vector<std::string> asignaciones;
    std::vector<std::string> listados;
    std::string rechaza;

    void darValor_A_Variable(std::string_view texto) override {
        if (!rechaza.empty() && texto.find(rechaza) != std::string_view::npos)
            throw std::runtime_error("Error de sintaxis");
        asignaciones.emplace_back(texto);
    }

    void agregarListado(std::string_view listado) override { listados.emplace_back(listado); }
};

using Textos = std::vector<std::string>;

class FrameInterpretation : public testing::Test {
protected:
    ConfiguracionFalsa configuracion;
    SalidaFalsa salida;
    InterpreteTramas interprete{MarcaFin(), configuracion, salida};
};

TEST_F(FrameInterpretation, readingBecomesFiveAssignmentLines) {
    interprete.interpretarTrama("240517123\n\r");
    EXPECT_EQ(salida.asignaciones, Textos{"AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\r\nVALIDEZ = 2\r\n"});
    EXPECT_EQ(salida.listados, Textos{"240517123\r\n"});
}

TEST_F(FrameInterpretation, frameTextOfTheReceiveLoopKeepsTheFirstEndCharacter) {
    interprete.interpretarTrama("240517123\n\n\r");
    EXPECT_EQ(salida.asignaciones, Textos{"AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\n\r\nVALIDEZ = 2\r\n"});
    EXPECT_EQ(salida.listados, Textos{"240517123\n\r\n"});
}

TEST_F(FrameInterpretation, twoReadingsGiveTwoAssignmentTextsInOrder) {
    interprete.interpretarTrama("240517123\n\r240518456\n\r");
    ASSERT_EQ(salida.asignaciones.size(), 2u);
    EXPECT_NE(salida.asignaciones[0].find("ID = 123\r\n"), std::string::npos);
    EXPECT_NE(salida.asignaciones[1].find("ID = 456\r\n"), std::string::npos);
    EXPECT_EQ(salida.listados, Textos{"240517123\r\n240518456\r\n"});
}

TEST_F(FrameInterpretation, readingAfterALeftOverEndCharacterIsShiftedByOne) {
    interprete.interpretarTrama("\r240517123\n\n\r");
    EXPECT_EQ(salida.asignaciones, Textos{"AA =\r2\r\nMM =40\r\nDD = 51\r\nID = 7123\n\r\nVALIDEZ = 2\r\n"});
}

TEST_F(FrameInterpretation, readingWithoutEndMarkIsInterpretedToo) {
    interprete.interpretarTrama("2405171");
    EXPECT_EQ(salida.listados, Textos{"2405171\r\n"});
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
    interprete.interpretarTrama("\n\r\n\r\n\r");
    EXPECT_TRUE(salida.asignaciones.empty());
    EXPECT_EQ(salida.listados, Textos{""});
}

TEST_F(FrameInterpretation, emptyFrameTextGivesAnEmptyListing) {
    interprete.interpretarTrama("");
    EXPECT_TRUE(salida.asignaciones.empty());
    EXPECT_EQ(salida.listados, Textos{""});
}

TEST_F(FrameInterpretation, markOfLettersSplitsInEitherCase) {
    InterpreteTramas conLetras{MarcaFin('x', 'y'), configuracion, salida};
    conLetras.interpretarTrama("1111111Xy2222222xY");
    EXPECT_EQ(salida.listados, Textos{"1111111\r\n2222222\r\n"});
}

TEST_F(FrameInterpretation, overlappingMarksSplitFromTheLeft) {
    InterpreteTramas iguales{MarcaFin(10, 10), configuracion, salida};
    iguales.interpretarTrama("A\n\n\n");
    EXPECT_EQ(salida.listados, Textos{"A\r\n\n\r\n"});
}

TEST_F(FrameInterpretation, engineGetsUtf8AndTheListStaysAnsi) {
    interprete.interpretarTrama("240517a\xF1o\x80\n\r");
    ASSERT_EQ(salida.asignaciones.size(), 1u);
    EXPECT_NE(salida.asignaciones[0].find("ID = año€\r\n"), std::string::npos);
    EXPECT_EQ(salida.listados, Textos{"240517a\xF1o\x80\r\n"});
}

TEST_F(FrameInterpretation, validityIsReadAnewForEachFrameText) {
    interprete.interpretarTrama("2405171");
    configuracion.valores["RS232_Cant_Intervalos_Validez"] = "7";
    interprete.interpretarTrama("2405171");
    EXPECT_NE(salida.asignaciones[0].find("VALIDEZ = 2\r\n"), std::string::npos);
    EXPECT_NE(salida.asignaciones[1].find("VALIDEZ = 7\r\n"), std::string::npos);
}

TEST_F(FrameInterpretation, validityIsReadOnceForAllReadingsOfAFrameText) {
    interprete.interpretarTrama("2405171\n\r2405172\n\r");
    EXPECT_EQ(configuracion.leidas, Textos{"RS232_Cant_Intervalos_Validez"});
}

TEST_F(FrameInterpretation, validityIsWrittenAsADecimalText) {
    for (const auto& [valor, texto] :
         {std::pair{"2.5", "2.5"}, {" 3 ", "3"}, {"1E3", "1000"}, {"-1", "-1"}, {"007", "7"}}) {
        configuracion.valores["RS232_Cant_Intervalos_Validez"] = valor;
        interprete.interpretarTrama("2405171");
        EXPECT_NE(salida.asignaciones.back().find(std::string("VALIDEZ = ") + texto + "\r\n"), std::string::npos)
            << salida.asignaciones.back();
    }
}

TEST_F(FrameInterpretation, validityThatIsNoNumberIsAFaultBeforeAnyAssignment) {
    configuracion.valores["RS232_Cant_Intervalos_Validez"] = "mucho";
    try {
        interprete.interpretarTrama("2405171");
        FAIL() << "no fault";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::tiposNoCoinciden);
    }
    EXPECT_TRUE(salida.asignaciones.empty());
    EXPECT_TRUE(salida.listados.empty());
}

TEST_F(FrameInterpretation, faultOfTheEngineStopsTheReadingsAfterItAndTheListing) {
    salida.rechaza = "ID = mal";
    EXPECT_THROW(interprete.interpretarTrama("2405171\n\r240517mal\n\r2405173\n\r"), std::runtime_error);
    EXPECT_EQ(salida.asignaciones.size(), 1u);
    EXPECT_TRUE(salida.listados.empty());
}

TEST_F(FrameInterpretation, everyByteReachesTheEngine) {
    for (int codigo = 0; codigo < 256; ++codigo) {
        const std::string lectura = "240517" + std::string(1, static_cast<char>(codigo));
        interprete.interpretarTrama(lectura);
        EXPECT_EQ(salida.listados.back(), lectura + "\r\n");
    }
    EXPECT_EQ(salida.asignaciones.size(), 256u);
}

} // namespace
