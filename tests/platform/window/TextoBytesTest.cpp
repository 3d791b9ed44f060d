// Bytes as characters and as hexadecimal blocks, their lines, rows and occurrences.
#include "platform/window/BusquedaTexto.h"
#include "platform/window/FilasTexto.h"

#include <QTest>

#include <random>

namespace {

using CrLf = TextoBytes::CrLf;

QString todo(const TextoBytes& texto) {
    return QString::fromStdU16String(texto.texto(0, texto.size()));
}

TextoBytes de(std::string_view ansi, CrLf crLf = CrLf::dosFines) {
    TextoBytes texto(crLf);
    texto.agregar(ansi);
    return texto;
}

void bloque(TextoBytes& texto, std::string_view bytes) {
    texto.agregarBloque(std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
}

// The rows from the first one on, as texts between bars.
QString filas(const TextoBytes& texto, int columnas) {
    const FilasTexto todas(texto, columnas);
    QString lista;
    for (FilaTexto fila = todas.desde(0);; fila = todas.desde(fila.hasta)) {
        lista += QString::fromStdU16String(texto.texto(fila.desde, todas.finVisible(fila))).remove(u'\n') + u'|';
        if (todas.esUltima(fila))
            return lista;
    }
}

// A text of both kinds, in pieces as they might come.
TextoBytes mezcla(unsigned inicio, std::size_t minimo, CrLf crLf) {
    std::mt19937 azar(inicio);
    TextoBytes texto(crLf);
    while (texto.size() < minimo) {
        std::string trozo(azar() % 300 + 1, ' ');
        for (char& c : trozo)
            c = static_cast<char>(azar() % 20 == 0 ? "\r\n"[azar() % 2] : "abcdefgh"[azar() % 8]);
        if (azar() % 3 == 0)
            bloque(texto, trozo);
        else
            texto.agregar(trozo);
    }
    return texto;
}

} // namespace

class TestTextoBytes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void charactersAreThoseOfTheCodePage() { QCOMPARE(todo(de("a\xF1o \x80\x01")), QStringLiteral("año €\x01")); }

    void hexadecimalIsUpperCaseWithoutLeadingZeroOneBlockALine() {
        TextoBytes texto(CrLf::dosFines);
        bloque(texto, std::string_view("\x00\x01\xFF\x0A\x03\x10", 6));
        bloque(texto, "A");
        bloque(texto, "");
        QCOMPARE(todo(texto), QStringLiteral("[0][1][FF][A][3][10]\n[41]\n"));
    }

    void everyByteHasItsHexadecimalForm() {
        TextoBytes texto(CrLf::dosFines);
        QString esperado;
        for (int b = 0; b < 256; ++b) {
            bloque(texto, std::string(1, static_cast<char>(b)));
            esperado += QStringLiteral("[%1]\n").arg(QString::number(b, 16).toUpper());
        }
        QCOMPARE(todo(texto), esperado);
    }

    void carriageReturnAndLineFeedEndALineEach() {
        QCOMPARE(todo(de("AB\r\nC\nD\rE")), QStringLiteral("AB\n\nC\nD\nE"));
    }

    void carriageReturnWithLineFeedMayEndOneLine() {
        QCOMPARE(todo(de("a\r\nb\nc\rd\n\re", CrLf::unFin)), QStringLiteral("a\nb\nc\nd\n\ne"));
    }

    void lineEndCutInTwoIsOneLineEnd() {
        TextoBytes texto(CrLf::unFin);
        texto.agregar("a\r");
        QCOMPARE(todo(texto), QStringLiteral("a\n"));
        QCOMPARE(texto.inicioLinea(2), std::size_t{2});
        texto.agregar("\nb");
        QCOMPARE(todo(texto), QStringLiteral("a\nb"));
        QCOMPARE(texto.inicioLinea(2), std::size_t{0});
        QCOMPARE(texto.inicioLinea(3), std::size_t{3});
    }

    void modeOfEachBlockIsThatOfItsArrival() {
        TextoBytes texto(CrLf::dosFines);
        texto.agregar("ab");
        bloque(texto, "\x01");
        texto.agregar("\nc");
        QCOMPARE(todo(texto), QStringLiteral("ab[1]\n\nc"));
    }

    void copyGoesOnShowingWhatTheTextWas() {
        TextoBytes texto = de("antes");
        const TextoBytes copia = texto;
        texto.agregar(" despues");
        bloque(texto, "\x01");
        QCOMPARE(todo(copia), QStringLiteral("antes"));
        texto.borrar();
        QCOMPARE(todo(copia), QStringLiteral("antes"));
        QCOMPARE(todo(texto), QString());
    }

    // Bytes that were read into the place where they will stand, or into another although that one was asked for.
    void textIsTheSameWhereverItsBytesWereRead() {
        std::mt19937 azar(1);
        TextoBytes texto(CrLf::dosFines);
        std::string esperado;
        int enSitio = 0;
        while (esperado.size() < 7'000'000) {
            std::string bytes(azar() % TextoBytes::maximoSitio + 1, 'x');
            for (std::size_t i = 0; i < bytes.size(); i += 7)
                bytes[i] = static_cast<char>('a' + azar() % 26);
            esperado += bytes;
            const std::span<std::uint8_t> sitio = texto.sitio();
            std::string_view leidos = bytes;
            if (!sitio.empty()) {
                QCOMPARE(sitio.size(), TextoBytes::maximoSitio);
                if (azar() % 4 == 0) {
                    std::fill(sitio.begin(), sitio.end(), std::uint8_t{'?'});
                } else {
                    std::copy(bytes.begin(), bytes.end(), sitio.begin());
                    leidos = {reinterpret_cast<const char*>(sitio.data()), bytes.size()};
                    ++enSitio;
                }
            }
            if (azar() % 2 == 0)
                texto.agregar(leidos);
            else
                bloque(texto, leidos);
        }
        QVERIFY(enSitio > 50);
        QCOMPARE(texto.size(), esperado.size());
        for (std::size_t i = 0; i < esperado.size(); ++i)
            if (texto.en(i) != static_cast<std::uint8_t>(esperado[i]))
                QFAIL(qPrintable(QString::number(i)));
    }

    void anEmptyTextHasNoPlaceYet() {
        TextoBytes texto(CrLf::dosFines);
        QVERIFY(texto.sitio().empty());
        texto.agregar(std::string(100'000, 'x'));
        texto.borrar();
        QVERIFY(texto.sitio().empty());
    }

    void lineStartsAreFoundWhateverWasAskedBefore() {
        for (const CrLf crLf : {CrLf::unFin, CrLf::dosFines}) {
            const TextoBytes texto = mezcla(1, 200'000, crLf);
            std::vector<std::size_t> inicios{0};
            for (std::size_t i = 0; i < texto.size(); ++i)
                inicios.push_back(texto.terminaLinea(i) ? i + 1 : inicios.back());
            std::mt19937 azar(2);
            for (int vez = 0; vez < 20'000; ++vez) {
                const std::size_t posicion = azar() % (texto.size() + 1);
                QCOMPARE(texto.inicioLinea(posicion), inicios[posicion]);
            }
        }
    }

    void rowsBreakAtTheLastColumnAndAtLineEnds() {
        QCOMPARE(filas(de("abcdefghij\nkl\n\nm"), 4), QStringLiteral("abcd|efgh|ij|kl||m|"));
        QCOMPARE(filas(de("abcd\nef", CrLf::dosFines), 4), QStringLiteral("abcd|ef|"));
        QCOMPARE(filas(de("abcd\r\nef", CrLf::unFin), 4), QStringLiteral("abcd|ef|"));
        QCOMPARE(filas(de("abcd\n"), 4), QStringLiteral("abcd||"));
        QCOMPARE(filas(de(""), 4), QStringLiteral("|"));
    }

    void cellsAreNotCutInTwo() {
        TextoBytes texto(CrLf::dosFines);
        texto.agregar("abc");
        bloque(texto, "\x11\x01\x22");
        QCOMPARE(filas(texto, 8), QStringLiteral("abc[11]|[1][22]||"));
    }

    // Every row found from any of its bytes, and from the row below, is the one that walking from the start gives.
    void rowsAreTheSameFromWhereverTheyAreFound() {
        for (const CrLf crLf : {CrLf::unFin, CrLf::dosFines})
            for (const int columnas : {4, 7, 80, 1000}) {
                const TextoBytes texto = mezcla(static_cast<unsigned>(columnas), 70'000, crLf);
                const FilasTexto todas(texto, columnas);
                std::vector<FilaTexto> antes;
                for (FilaTexto fila = todas.desde(0);; fila = todas.desde(fila.hasta)) {
                    QCOMPARE(todas.de(fila.desde).desde, fila.desde);
                    if (fila.hasta > fila.desde)
                        QCOMPARE(todas.de(fila.hasta - 1).desde, fila.desde);
                    if (fila.desde > 0)
                        QCOMPARE(todas.anterior(fila).desde, antes.back().desde);
                    antes.push_back(fila);
                    for (const std::size_t cuantas : {0U, 1U, 2U, 40U}) {
                        const FilaTexto& esperada = antes[antes.size() - 1 - std::min(cuantas, antes.size() - 1)];
                        QCOMPARE(todas.porEncima(fila, static_cast<int>(cuantas)).desde, esperada.desde);
                    }
                    if (todas.esUltima(fila))
                        break;
                }
                QCOMPARE(todas.de(texto.size()).desde, antes.back().desde);
            }
    }

    void occurrencesAreFoundWithoutRegardToCase() {
        const TextoBytes texto = de("Lectura lectura LECTURA \xD1u\xF1u");
        QCOMPARE(BusquedaTexto(u"lectura").en(texto, 0, texto.size()).size(), std::size_t{3});
        QCOMPARE(BusquedaTexto(u"ñu").en(texto, 0, texto.size()).size(), std::size_t{2});
        QVERIFY(BusquedaTexto(u"").en(texto, 0, texto.size()).empty());
    }

    void occurrenceOverTheEndOfThePieceBelongsToWhereItBegins() {
        const TextoBytes texto = de("xxabcxx");
        const BusquedaTexto busqueda(u"abc");
        QCOMPARE(busqueda.en(texto, 0, 3).size(), std::size_t{1});
        QCOMPARE(busqueda.en(texto, 3, 7).size(), std::size_t{0});
        QCOMPARE(busqueda.en(texto, 0, 2).size(), std::size_t{0});
    }

    void hexadecimalIsSearchedAsItIsShown() {
        TextoBytes texto(CrLf::dosFines);
        bloque(texto, "\x01\x02\xFF\x02\xFF");
        const auto hallazgos = BusquedaTexto(u"[2][ff]").en(texto, 0, texto.size());
        QCOMPARE(hallazgos.size(), std::size_t{2});
        QCOMPARE(hallazgos[0].desde, std::size_t{1});
        QCOMPARE(hallazgos[0].hasta, std::size_t{3});
    }
};

QTEST_MAIN(TestTextoBytes)
#include "TextoBytesTest.moc"
