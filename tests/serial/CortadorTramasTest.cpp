// Cutting frames: where they end, what stays in the buffer, and what it costs.
#include "serial/CortadorTramas.h"

#include "TiempoDeProcesador.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

std::string cortar(CortadorTramas& cortador, std::string_view trozo) {
    std::string trama;
    cortador.agregar(trozo);
    cortador.cortar(trama);
    return trama;
}

TEST(FrameCutting, secondEndCharacterStaysAtTheHeadOfTheBuffer) {
    CortadorTramas cortador{MarcaFin()};
    EXPECT_EQ(cortar(cortador, "AB\n\r"), "AB\n\n\r");
    EXPECT_EQ(cortador.buffer(), "\r");
}

TEST(FrameCutting, leftOverCharacterBeginsTheNextFrame) {
    CortadorTramas cortador{MarcaFin()};
    cortar(cortador, "AB\n\r");
    EXPECT_EQ(cortar(cortador, "CD\n\r"), "\rCD\n\n\r");
    EXPECT_EQ(cortador.buffer(), "\r");
}

TEST(FrameCutting, textWithoutEndMarkGivesNoFrame) {
    CortadorTramas cortador{MarcaFin()};
    EXPECT_EQ(cortar(cortador, "AB\r\nCD\n"), "");
    EXPECT_EQ(cortador.buffer(), "AB\r\nCD\n");
}

TEST(FrameCutting, twoFramesInOneChunkGiveOneText) {
    CortadorTramas cortador{MarcaFin()};
    EXPECT_EQ(cortar(cortador, "A\n\rB\n\rC"), "A\n\n\r\rB\n\n\r");
    EXPECT_EQ(cortador.buffer(), "\rC");
}

TEST(FrameCutting, frameTextIsAddedToWhatItHolds) {
    CortadorTramas cortador{MarcaFin()};
    std::string trama = "antes ";
    cortador.agregar("A\n\r");
    cortador.cortar(trama);
    EXPECT_EQ(trama, "antes A\n\n\r");
}

TEST(FrameCutting, endMarkMayArriveInTwoPieces) {
    CortadorTramas cortador{MarcaFin()};
    EXPECT_EQ(cortar(cortador, "AB\n"), "");
    EXPECT_EQ(cortar(cortador, "\r"), "AB\n\n\r");
}

TEST(FrameCutting, everyCutOfTheInputGivesTheSameFrames) {
    const std::string entrada = "uno\n\rdos\n\n\r\n\rtres\r\n\r resto";
    CortadorTramas entero{MarcaFin()};
    const std::string tramas = cortar(entero, entrada);
    for (std::size_t corte = 0; corte <= entrada.size(); ++corte) {
        CortadorTramas partido{MarcaFin()};
        std::string trama = cortar(partido, entrada.substr(0, corte));
        trama += cortar(partido, entrada.substr(corte));
        EXPECT_EQ(trama, tramas) << corte;
        EXPECT_EQ(partido.buffer(), entero.buffer()) << corte;
    }
}

TEST(FrameCutting, endCharacters13And10MakeTheMarkCrLf) {
    CortadorTramas cortador{MarcaFin(13, 10)};
    EXPECT_EQ(cortar(cortador, "AB\r\n"), "AB\r\r\n");
    EXPECT_EQ(cortador.buffer(), "\n");
}

TEST(FrameCutting, equalEndCharactersNeedTwoOfThem) {
    CortadorTramas cortador{MarcaFin(10, 10)};
    EXPECT_EQ(cortar(cortador, "A\n"), "");
    EXPECT_EQ(cortar(cortador, "\n"), "A\n\n\n");
    EXPECT_EQ(cortador.buffer(), "\n");
    EXPECT_EQ(cortar(cortador, "\n"), "\n\n\n");
}

TEST(FrameCutting, zeroIsACharacterLikeAnyOther) {
    CortadorTramas cortador{MarcaFin(0, 0)};
    EXPECT_EQ(cortar(cortador, "A\0B\0\0C"s), "A\0B\0\0\0"s);
    EXPECT_EQ(cortador.buffer(), "\0C"s);
}

TEST(FrameCutting, marksOfLettersAreFoundInEitherCase) {
    CortadorTramas cortador{MarcaFin('f', 'I')};
    EXPECT_EQ(cortar(cortador, "unoFIdosfitresFi"), "unoFfIIdosffIitresFfI");
    EXPECT_EQ(cortador.buffer(), "i");
}

TEST(FrameCutting, accentedLettersOfTheAnsiCodePageAreFoundInEitherCase) {
    CortadorTramas cortador{MarcaFin(0xD1, 0x9A)}; // capital N with tilde, small s with caron
    EXPECT_EQ(cortar(cortador, "A\xF1\x8A"), "A\xF1\xD1\x9A");
}

TEST(FrameCutting, charactersWithoutCaseAreNotTakenForEachOther) {
    CortadorTramas cortador{MarcaFin('[', '{')}; // 32 apart like the cases of a letter
    EXPECT_EQ(cortar(cortador, "[[{{{["), "[[[{");
}

TEST(FrameCutting, everyByteMayEndAFrame) {
    for (int codigo = 0; codigo < 256; ++codigo) {
        const auto byte = static_cast<unsigned char>(codigo);
        CortadorTramas cortador{MarcaFin(byte, byte)};
        const std::string par(2, static_cast<char>(byte));
        EXPECT_EQ(cortar(cortador, par), par.substr(1) + par) << codigo;
    }
}

TEST(FrameCutting, emptiedBufferForgetsHalfAMark) {
    CortadorTramas cortador{MarcaFin()};
    cortar(cortador, "AB\n");
    cortador.vaciar();
    EXPECT_EQ(cortar(cortador, "\rCD\n\r"), "\rCD\n\n\r");
}

TEST(FrameCutting, emptiedBufferIsSearchedFromItsFirstCharacter) {
    CortadorTramas cortador{MarcaFin()};
    cortar(cortador, "AB");
    cortador.vaciar();
    EXPECT_EQ(cortar(cortador, "\n\rAB"), "\n\n\r");
    EXPECT_EQ(cortador.buffer(), "\rAB");
}

TEST(FrameCutting, versionChangesWithTheBufferOnly) {
    CortadorTramas cortador{MarcaFin()};
    const auto alPrincipio = cortador.version();
    cortar(cortador, "");
    cortador.vaciar();
    EXPECT_EQ(cortador.version(), alPrincipio);
    cortar(cortador, "A");
    const auto conA = cortador.version();
    EXPECT_NE(conA, alPrincipio);
    cortador.vaciar();
    EXPECT_NE(cortador.version(), conA);
}

// Milliseconds of processor time; a build that counts its lines takes a minute.
constexpr std::int64_t enLugarDeHoras = 300'000;

// 100 MB in small pieces: a search from the first character each time would take hours.
TEST(FrameCutting, hundredMegabytesWithoutEndMarkTakeLinearTime) {
    CortadorTramas cortador{MarcaFin()};
    const std::string trozo(4096, 'x');
    std::string trama;
    const std::int64_t antes = msDeProcesador();
    for (int i = 0; i < 25'600; ++i) {
        cortador.agregar(trozo);
        cortador.cortar(trama);
    }
    EXPECT_LT(msDeProcesador() - antes, enLugarDeHoras);
    EXPECT_EQ(cortador.buffer().size(), 25'600u * 4096u);
    EXPECT_TRUE(trama.empty());
}

// Eight million frames in one piece: moving the rest of the buffer after each would take hours.
TEST(FrameCutting, manyFramesInOneChunkTakeLinearTime) {
    CortadorTramas cortador{MarcaFin()};
    std::string trozo;
    for (int i = 0; i < 8'000'000; ++i)
        trozo += "a\n\r";
    std::string trama;
    cortador.agregar(trozo);
    const std::int64_t antes = msDeProcesador();
    cortador.cortar(trama);
    EXPECT_LT(msDeProcesador() - antes, enLugarDeHoras);
    EXPECT_EQ(cortador.buffer(), "\r");
    EXPECT_EQ(trama.size(), trozo.size() + 2 * 8'000'000u - 1);
}

} // namespace
