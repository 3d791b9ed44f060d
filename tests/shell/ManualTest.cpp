// The manual: F1 everywhere, every link, every picture, and every key and name of a control that its pages tell.

#include "TiempoDeProcesador.h"
#include "TodasLasVentanas.h"
#include "platform/window/MsgBox.h"
#include "platform/window/PaginaManual.h"
#include "shell/FrmManual.h"
#include "shell/LibroManual.h"
#include "shell/PaginaVisible.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeWidget>

#include <set>

namespace {

QString leer(const QString& ruta) {
    QFile archivo(ruta);
    return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
}

QStringList paginas() {
    return QDir(QStringLiteral(":/docs/manual")).entryList();
}

QString paginaEntera(const QString& archivo) {
    return leer(QStringLiteral(":/docs/manual/") + archivo);
}

// Without what stands in blocks of code.
QString prosa(const QString& archivo) {
    static const QRegularExpression bloque(QStringLiteral("```.*?```"), QRegularExpression::DotMatchesEverythingOption);
    return paginaEntera(archivo).remove(bloque);
}

std::set<QString> anclasDe(const QString& texto) {
    static const QRegularExpression titulo(QStringLiteral("^#+ (.+)$"), QRegularExpression::MultilineOption);
    std::set<QString> anclas;
    for (auto todos = titulo.globalMatch(texto); todos.hasNext();)
        anclas.insert(anclaDeTitulo(todos.next().captured(1).remove(u'`')));
    return anclas;
}

// A text of a control as it is read: without the marks of its keys.
QString leido(QString texto) {
    return texto.remove(u'&').section(u'\t', 0, 0);
}

// Everything that can be read on the controls and in the menus of a window.
std::set<QString> textosDe(const QWidget& ventana) {
    std::set<QString> textos{ventana.windowTitle()};
    const auto de = [&]<typename Control>(const Control*, auto propiedad) {
        for (const auto* control : ventana.findChildren<Control*>())
            textos.insert(leido((control->*propiedad)()));
    };
    de(static_cast<QAbstractButton*>(nullptr), &QAbstractButton::text);
    de(static_cast<QLabel*>(nullptr), &QLabel::text);
    de(static_cast<QGroupBox*>(nullptr), &QGroupBox::title);
    de(static_cast<QAction*>(nullptr), &QAction::text);
    de(static_cast<QMenu*>(nullptr), &QMenu::title);
    de(static_cast<QLineEdit*>(nullptr), &QLineEdit::placeholderText);
    for (const auto* lista : ventana.findChildren<QTreeWidget*>()) {
        textos.insert(lista->accessibleName());
        for (int i = 0; i < lista->topLevelItemCount(); ++i)
            textos.insert(lista->topLevelItem(i)->text(0));
    }
    return textos;
}

QKeySequence teclaEspanola(QString nombre) {
    static const std::map<QString, QString> nombres{{"Mayús", "Shift"},    {"Intro", "Return"},  {"Entrar", "Return"},
                                                    {"Izquierda", "Left"}, {"Derecha", "Right"}, {"Inicio", "Home"},
                                                    {"Fin", "End"},        {"Espacio", "Space"}, {"Re Pág", "PgUp"},
                                                    {"Av Pág", "PgDown"},  {"flechas", "Down"},  {"Arriba", "Up"}};
    for (const auto& [espanol, ingles] : nombres)
        nombre.replace(espanol, ingles);
    return QKeySequence::fromString(nombre, QKeySequence::PortableText);
}

// Whether the window answers to that key: by a shortcut, or because a control takes it.
bool atiende(const QWidget& ventana, const QKeySequence& tecla) {
    for (const auto* atajo : ventana.findChildren<QShortcut*>())
        if (atajo->key() == tecla)
            return true;
    for (const auto* accion : ventana.findChildren<QAction*>())
        if (accion->shortcuts().contains(tecla))
            return true;
    for (auto* boton : ventana.findChildren<QAbstractButton*>())
        if (boton->shortcut() == tecla)
            return true;
    const QKeyCombination juntas = tecla[0];
    for (auto* control : ventana.findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->isWindow() || !control->isEnabled())
            continue;
        QKeyEvent anulacion(QEvent::ShortcutOverride, juntas.key(), juntas.keyboardModifiers());
        anulacion.ignore();
        QCoreApplication::sendEvent(control, &anulacion);
        if (anulacion.isAccepted())
            return true;
        QKeyEvent pulsada(QEvent::KeyPress, juntas.key(), juntas.keyboardModifiers());
        if (QCoreApplication::sendEvent(control, &pulsada) && pulsada.isAccepted())
            return true;
    }
    return false;
}

} // namespace

class TestManual : public QObject {
    Q_OBJECT

    static FrmManual* manual() {
        for (QWidget* const una : QApplication::topLevelWidgets())
            if (auto* abierto = qobject_cast<FrmManual*>(una); abierto != nullptr && abierto->isVisible())
                return abierto;
        return nullptr;
    }
    static PaginaVisible& pagina() { return *manual()->findChild<PaginaVisible*>(); }
    template <typename Control>
    static Control& control(const char* nombre) {
        return *manual()->findChild<Control*>(QLatin1String(nombre));
    }
    static QString lugar() {
        return pagina().source().fileName() + (pagina().source().hasFragment() ? "#" : "") +
               pagina().source().fragment();
    }

private Q_SLOTS:
    void initTestCase() { LibroManual(); } // the resources

    void everyPageAndPictureOfTheFoldersIsCompiledIn() {
        const QDir docs(QStringLiteral(DOCS));
        QCOMPARE(QDir(docs.filePath("manual")).entryList(QDir::Files), paginas());
        QCOMPARE(QDir(docs.filePath("imagenes")).entryList(QDir::Files),
                 QDir(QStringLiteral(":/docs/imagenes")).entryList());
    }

    void everyLinkLeadsSomewhereAndEveryPictureIsShown() {
        static const QRegularExpression enlace(QStringLiteral(R"(\]\(([^)]+)\))"));
        std::set<QString> imagenes;
        for (const QString& archivo : paginas())
            for (auto todos = enlace.globalMatch(prosa(archivo)); todos.hasNext();) {
                const QString destino = todos.next().captured(1);
                const QUrl url = LibroManual::url(archivo).resolved(QUrl(destino));
                const QString recurso = u':' + url.path();
                QVERIFY2(QFile::exists(recurso), qPrintable(archivo + ": " + destino));
                if (recurso.endsWith(QLatin1String(".png")))
                    imagenes.insert(QFileInfo(recurso).fileName());
                else if (url.hasFragment())
                    QVERIFY2(anclasDe(leer(recurso)).contains(url.fragment(QUrl::FullyDecoded)),
                             qPrintable(archivo + ": " + destino));
            }
        const QStringList hechas = QDir(QStringLiteral(":/docs/imagenes")).entryList();
        QCOMPARE(QStringList(imagenes.begin(), imagenes.end()), hechas);
    }

    void everyPageStandsInTheContents() {
        QStringList todas;
        const LibroManual libro;
        for (const PaginaDelManual& una : libro.paginas()) {
            QVERIFY2(!una.titulo.isEmpty(), qPrintable(una.archivo));
            todas << una.archivo;
        }
        todas.sort();
        QCOMPARE(todas, paginas());
    }

    void f1OpensThePageOfEachWindow() {
        TodasLasVentanas p;
        for (const auto& [ventana, esperada] : p.todas) {
            TodasLasVentanas::activar(*ventana);
            QTest::keyClick(ventana.data(), Qt::Key_F1);
            QVERIFY2(manual() != nullptr, qPrintable(ventana->objectName()));
            QCOMPARE(lugar(), esperada);
            QVERIFY2(pagina().document()->characterCount() > 200, qPrintable(esperada));
            manual()->close();
        }
    }

    void f1OnAControlOpensThePageOfTheControl() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        TodasLasVentanas::activar(*p.ventana);
        const std::map<const char*, const char*> esperadas{
            {"MSFlexGrid(1)", "cuadricula.md"},      {"ChResponder(1)", "cuadricula.md#las-casillas-de-un-esclavo"},
            {"txtTramas(1)", "monitores.md#tramas"}, {"txtEscrituras", "monitores.md#escrituras"},
            {"chScript", "scripts.md#las-pasadas"},  {"BarraEstado", "estado.md"}};
        for (const auto& [nombre, esperada] : esperadas) {
            QTest::keyClick(&p.control<QWidget>(nombre), Qt::Key_F1);
            QVERIFY2(manual() != nullptr, nombre);
            QCOMPARE(lugar(), QString::fromUtf8(esperada));
        }
    }

    void f1OnTheConsoleTellsOfTheConsole() {
        TodasLasVentanas p;
        for (const auto& una : p.todas)
            if (auto* consola = una.ventana->findChild<QWidget*>(QStringLiteral("txtConsola")))
                QTest::keyClick(consola, Qt::Key_F1);
        QVERIFY(manual() != nullptr);
        QCOMPARE(lugar(), QStringLiteral("scripts.md#la-consola"));
    }

    void f1OpensItAboveABoxThatWaits() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        QPointer<QWidget> abierto;
        QTimer::singleShot(0, [&] {
            QWidget* const caja = QApplication::activeModalWidget();
            QTest::keyClick(caja, Qt::Key_F1);
            abierto = manual();
            const bool suya = abierto && abierto->parentWidget() == caja;
            if (suya)
                QTest::keyClick(&control<QLineEdit>("txtBuscarEnTodo"), Qt::Key_S);
            caja->close();
            QVERIFY(suya);
        });
        MsgBox(p.ventana.get(), QStringLiteral("¿Seguimos?"));
        QVERIFY(abierto.isNull()); // it went with the box
        QTest::keyClick(p.ventana.get(), Qt::Key_F1);
        QVERIFY(manual() != nullptr);
    }

    void linksBackAndForwardWork() {
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("indice.md"));
        TodasLasVentanas::activar(ventana);
        pagina().setSource(pagina().source().resolved(QUrl(QStringLiteral("monitores.md#el-límite"))));
        QCOMPARE(lugar(), QStringLiteral("monitores.md#el-límite"));
        QVERIFY(pagina().verticalScrollBar()->value() > 0);
        QTest::keyClick(&ventana, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(lugar(), QStringLiteral("indice.md"));
        QTest::mouseClick(&control<QPushButton>("btnAdelante"), Qt::LeftButton);
        QCOMPARE(lugar(), QStringLiteral("monitores.md#el-límite"));
        QTest::keyClick(&ventana, Qt::Key_Home, Qt::AltModifier);
        QCOMPARE(lugar(), QStringLiteral("indice.md"));
        QTest::keyClick(&ventana, Qt::Key_Escape);
        QVERIFY(!ventana.isVisible());
    }

    void aPageThatDoesNotExistOpensTheFirst() {
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("nada.md"));
        ventana.show();
        QCOMPARE(lugar(), QStringLiteral("indice.md"));
    }

    void searchFindsWordsInAllPagesWhateverTheirAccents() {
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("indice.md"));
        TodasLasVentanas::activar(ventana);
        QTest::keyClick(&ventana, Qt::Key_K, Qt::ControlModifier);
        auto& campo = control<QLineEdit>("txtBuscarEnTodo");
        QVERIFY(campo.hasFocus());
        QTest::keyClicks(&campo, QStringLiteral("excepcion 127"));
        auto& lista = control<QListWidget>("listaHallazgos");
        QVERIFY(lista.isVisible() && lista.count() >= 1);
        QTest::keyClick(&campo, Qt::Key_Return);
        QVERIFY(lista.hasFocus());
        QVERIFY(lugar() != QStringLiteral("indice.md"));
        const auto marcas = pagina().extraSelections();
        QVERIFY(!marcas.empty());
        for (const auto& marca : marcas)
            QVERIFY(QStringLiteral("excepcion 127").contains(sinAcentos(marca.cursor.selectedText())));
        campo.setText(QStringLiteral("xyzxyz"));
        QCOMPARE(lista.item(0)->text(), QStringLiteral("No se encuentra"));
        campo.setFocus();
        QTest::keyClick(&campo, Qt::Key_Escape);
        QVERIFY(ventana.isVisible() && control<QTreeWidget>("indiceManual").isVisible());
    }

    void searchInThePageGoesFromOneToTheNext() {
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("puente.md"));
        TodasLasVentanas::activar(ventana);
        QTest::keyClick(&ventana, Qt::Key_F, Qt::ControlModifier);
        auto& patron = control<QLineEdit>("txtBuscar");
        QVERIFY(patron.isVisible());
        QTest::keyClicks(&patron, QStringLiteral("puerto"));
        QVERIFY(pagina().extraSelections().size() > 2);
        QTest::keyClick(&patron, Qt::Key_Return);
        const int primero = pagina().textCursor().selectionStart();
        QCOMPARE(pagina().textCursor().selectedText().toLower(), QStringLiteral("puerto"));
        QTest::keyClick(&patron, Qt::Key_F3);
        QVERIFY(pagina().textCursor().selectionStart() > primero);
        QTest::keyClick(&patron, Qt::Key_Escape);
        QVERIFY(ventana.isVisible() && !patron.isVisible());
    }

    void fitsASmallScreenAndIsMadeInAMoment() {
        const std::int64_t antes = msDeProcesador();
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("scripts.md"));
        TodasLasVentanas::activar(ventana);
        const std::int64_t usado = msDeProcesador() - antes;
        qInfo("the manual opens in %lld ms of processor time", static_cast<long long>(usado));
        QVERIFY(usado < 2000);
        QVERIFY(ventana.minimumSizeHint().width() <= 1024 && ventana.minimumSizeHint().height() <= 700);
        QVERIFY(ventana.width() <= 1024 && ventana.height() <= 700);
        QVERIFY(!pagina().horizontalScrollBar()->isVisible());
    }

    void noPictureIsWiderThanThePage() {
        FrmManual ventana(nullptr);
        ventana.abrir(QStringLiteral("inicio.md"));
        TodasLasVentanas::activar(ventana);
        ventana.resize(700, 500);
        QTRY_VERIFY(!pagina().horizontalScrollBar()->isVisible());
    }

    void pagesNameOnlyControlsThatExist() {
        TodasLasVentanas p;
        std::set<QString> textos;
        for (const auto& una : p.todas)
            textos.merge(textosDe(*una.ventana));
        FrmManual ventana(nullptr);
        textos.merge(textosDe(ventana));
        const auto existe = [&](const QString& nombre) {
            return std::any_of(textos.begin(), textos.end(), [&](const QString& texto) {
                return texto == nombre ||
                       (texto.startsWith(nombre) && (nombre.endsWith(u':') || !texto[nombre.size()].isLetter())) ||
                       texto.contains(u' ' + nombre);
            });
        };
        // What is quoted and is no control: what others say, and what only shows in some states.
        const std::set<QString> citas{"Programa en ejecucion",
                                      "Invalid exception code",
                                      "No Response received",
                                      "Parar",
                                      "Connection timed out",
                                      "terminal de datos",
                                      "Fin de trama",
                                      "Error",
                                      "Último error",
                                      "RETENIDO",
                                      "la pantalla ha dejado de responder",
                                      "Conectado",
                                      "Desborde"};
        std::set<QString> usadas;
        static const QRegularExpression entreComillas(QStringLiteral("\"([^\"]+)\""));
        for (const QString& archivo : paginas()) {
            static const QRegularExpression codigo(QStringLiteral("`[^`]*`"));
            const QString texto = prosa(archivo).remove(codigo).replace(u'\n', u' ');
            for (auto todas = entreComillas.globalMatch(texto); todas.hasNext();) {
                const QString nombre = todas.next().captured(1);
                if (existe(nombre))
                    continue;
                QVERIFY2(citas.contains(nombre), qPrintable(archivo + ": \"" + nombre + "\""));
                usadas.insert(nombre);
            }
        }
        QCOMPARE(QStringList(usadas.begin(), usadas.end()), QStringList(citas.begin(), citas.end()));
    }

    void pagesNameOnlyKeysThatTheirWindowsAnswer() {
        TodasLasVentanas p;
        FrmManual ventanaManual(nullptr);
        ventanaManual.show();
        std::vector<TodasLasVentanas::Ventana> todas = p.todas;
        todas.push_back({&ventanaManual, QStringLiteral("indice.md")});
        todas.push_back({p.ventana.get(), QStringLiteral("cuadricula.md")});
        todas.push_back({p.ventana.get(), QStringLiteral("estado.md")});
        todas.push_back({p.ventana.get(), QStringLiteral("monitores.md")});
        todas.push_back({p.ventana.get(), QStringLiteral("grafica.md")});
        for (const auto& una : todas)
            QVERIFY2(!atiende(*una.ventana, QKeySequence(QStringLiteral("Ctrl+Alt+F11"))), qPrintable(una.pagina));
        for (const auto& una : p.todas)
            if (una.ventana->objectName() == QLatin1String("FrmEdicionCodigo"))
                for (const char* const pagina : {"problemas.md", "scripts.md"})
                    todas.push_back({una.ventana, QLatin1String(pagina)});
        static const QRegularExpression tecla(
            QStringLiteral(R"(\b((?:(?:Ctrl|Mayús|Alt)\+)+(?:Re Pág|Av Pág|[\wúí]+|\+|-)|F\d{1,2}))"));
        QVERIFY(tecla.isValid());
        static const QRegularExpression codigo(QStringLiteral("`[^`]*`"));
        for (const QString& archivo : paginas()) {
            const QString texto = prosa(archivo).remove(codigo);
            for (auto halladas = tecla.globalMatch(texto); halladas.hasNext();) {
                const QString nombre = halladas.next().captured(1);
                const QKeySequence secuencia = teclaEspanola(nombre);
                QVERIFY2(secuencia.count() == 1 && secuencia[0].key() != Qt::Key_unknown,
                         qPrintable(archivo + ": " + nombre));
                if (nombre == QLatin1String("F1") || (nombre == QLatin1String("Ctrl+C") && archivo == u"scripts.md") ||
                    (nombre == QLatin1String("Alt+P") && archivo == u"scripts.md"))
                    continue; // everywhere: f1OpensThePageOfEachWindow; of the terminal; of a bar that comes and goes
                const bool alguna = std::any_of(todas.begin(), todas.end(), [&](const auto& una) {
                    return una.pagina.section(u'#', 0, 0) == archivo && atiende(*una.ventana, secuencia);
                });
                QVERIFY2(alguna, qPrintable(archivo + ": " + nombre));
            }
        }
    }

    void everyShortcutOfAWindowIsToldOnItsPage() {
        TodasLasVentanas p;
        FrmManual ventanaManual(nullptr);
        std::vector<TodasLasVentanas::Ventana> todas = p.todas;
        todas.push_back({&ventanaManual, QStringLiteral("indice.md")});
        for (const auto& [ventana, lugar] : todas) {
            QString texto = paginaEntera(lugar.section(u'#', 0, 0));
            if (ventana == p.ventana.get()) // told on the pages of its parts
                texto += paginaEntera(QStringLiteral("cuadricula.md")) + paginaEntera(QStringLiteral("estado.md"));
            QList<QKeySequence> teclas;
            for (const auto* atajo : ventana->findChildren<QShortcut*>())
                if (const auto* de = qobject_cast<QWidget*>(atajo->parent()); de != nullptr && de->window() == ventana)
                    teclas << atajo->key();
            for (const auto* accion : ventana->findChildren<QAction*>())
                if (const auto* de = qobject_cast<QWidget*>(accion->parent()); de == nullptr || de->window() == ventana)
                    teclas << accion->shortcuts();
            static const QRegularExpression tecla(
                QStringLiteral(R"(((?:(?:Ctrl|Mayús|Alt)\+)+(?:Re Pág|Av Pág|[\wúí]+|\+|-)|F\d{1,2}))"));
            QList<QKeySequence> dichas;
            for (auto halladas = tecla.globalMatch(texto); halladas.hasNext();)
                dichas << teclaEspanola(halladas.next().captured(1));
            for (const QKeySequence& una : std::as_const(teclas)) {
                const QString nombre = una.toString(QKeySequence::PortableText);
                if (nombre.isEmpty() || nombre == QLatin1String("Ctrl+=")) // the same key as Ctrl++
                    continue;
                QVERIFY2(dichas.contains(una), qPrintable(ventana->objectName() + ": " + nombre));
            }
        }
    }
};

QTEST_MAIN(TestManual)
#include "ManualTest.moc"
