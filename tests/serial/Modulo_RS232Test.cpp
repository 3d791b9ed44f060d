// The settings of the serial link: defaults, write-back, conversions and bad values.
#include "serial/Modulo_RS232.h"

#include "EntornoFalso.h"
#include "registers/ErrorEjecucion.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

std::optional<int> errorDelPuerto(std::string_view numero) {
    ConfiguracionRS232 ajustes;
    ajustes.NomCOM = numero;
    try {
        static_cast<void>(ajustes.CommPort());
        return std::nullopt;
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
}

std::string marcaDe(std::string_view primero, std::string_view segundo, LogFalso& log) {
    AjustesFalsos configuracion;
    configuracion.valores["Caracter_Fin_TRAMA_1"] = primero;
    configuracion.valores["Caracter_Fin_TRAMA_2"] = segundo;
    return std::string(leerMarcaFin(configuracion, log).texto());
}

std::string marcaDe(std::string_view primero, std::string_view segundo) {
    LogFalso log;
    std::string marca = marcaDe(primero, segundo, log);
    EXPECT_TRUE(log.lineas.empty());
    return marca;
}

TEST(SerialSettings, freshConfigurationGainsTheFiveKeys) {
    AjustesFalsos configuracion;
    const ConfiguracionRS232 ajustes = ConfiguracionRS232::leer(configuracion);
    EXPECT_EQ(ajustes.CommPort(), 1);
    EXPECT_EQ(ajustes.Settings(), "9600,N,8,1");
    EXPECT_EQ(configuracion.leidas, (std::vector<std::string>{"RS232_NomCOM", "RS232_Baudios", "RS232_Paridad",
                                                              "RS232_DataBits", "RS232_StopBit"}));
    EXPECT_EQ(configuracion.valores.at("RS232_Baudios"), "9600");
}

TEST(SerialSettings, settingsTextHoldsWhatStandsInTheFile) {
    AjustesFalsos configuracion;
    configuracion.valores = {
        {"RS232_Baudios", "abc"}, {"RS232_Paridad", ""}, {"RS232_DataBits", "7"}, {"RS232_StopBit", "1.5"}};
    EXPECT_EQ(ConfiguracionRS232::leer(configuracion).Settings(), "abc,,7,1.5");
}

TEST(SerialSettings, portNumberIsAWholeNumberOf16Bits) {
    EXPECT_EQ(errorDelPuerto("32767"), std::nullopt);
    EXPECT_EQ(errorDelPuerto("32768"), ErrorEjecucion::desbordamiento);
    EXPECT_EQ(errorDelPuerto("tres"), ErrorEjecucion::tiposNoCoinciden);
    EXPECT_EQ(errorDelPuerto(""), ErrorEjecucion::tiposNoCoinciden);
}

TEST(SerialSettings, portNumberIsRoundedToTheEvenNeighbour) {
    ConfiguracionRS232 ajustes;
    ajustes.NomCOM = "2,5";
    EXPECT_EQ(ajustes.CommPort(), 2);
}

TEST(EndMark, freshConfigurationGivesLineFeedThenCarriageReturn) {
    AjustesFalsos configuracion;
    LogFalso log;
    EXPECT_EQ(leerMarcaFin(configuracion, log).texto(), "\n\r");
    EXPECT_EQ(configuracion.leidas, (std::vector<std::string>{"Caracter_Fin_TRAMA_1", "Caracter_Fin_TRAMA_2"}));
    EXPECT_TRUE(log.lineas.empty());
}

TEST(EndMark, charactersAreThoseOfTheCodes) {
    EXPECT_EQ(marcaDe("13", "10"), "\r\n");
    EXPECT_EQ(marcaDe("0", "0"), std::string(2, '\0'));
    EXPECT_EQ(marcaDe("255", "65"), "\xFF\x41");
    EXPECT_EQ(marcaDe("3", "3"), "\x03\x03");
    EXPECT_EQ(marcaDe("10,4", " 13 "), "\n\r");
}

TEST(EndMark, valueThatIsNoCharacterCodeIsLoggedAndTheDefaultStands) {
    for (const char* malo : {"300", "256", "-1", "abc", "", "99999999999", "1E400"}) {
        LogFalso log;
        EXPECT_EQ(marcaDe(malo, "65", log), "\nA") << malo;
        EXPECT_EQ(marcaDe("65", malo, log), "A\r") << malo;
        ASSERT_EQ(log.lineas.size(), 2u) << malo;
        EXPECT_EQ(log.lineas[0].find("RS232>Caracter_Fin_TRAMA_1: " + std::string(malo) + ">>"), 0u) << log.lineas[0];
    }
}

} // namespace
