// The manual as data: its pages in order, their headings, and the search over all of them. The pages are those of
// docs/manual, compiled in; the order is that of the links in its first page.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

struct SeccionManual {
    QString titulo; // of the page itself: empty
    QString ancla;  // empty for what stands above the first heading
    QString texto;  // without its marks
    int nivel = 1;  // 2 for "##"
};

struct PaginaDelManual {
    QString archivo; // "editor.md"
    QString titulo;
    QList<SeccionManual> secciones;
};

struct HallazgoManual {
    QString donde; // "El editor › Las teclas"
    QString extracto;
    QUrl url;
};

class LibroManual {
public:
    LibroManual();

    static QUrl url(const QString& pagina); // "editor.md#teclas"
    static constexpr const char* primera = "indice.md";

    const QList<PaginaDelManual>& paginas() const { return paginas_; }

    // The sections that hold all these words, in the order of the pages; case and accents do not matter.
    QList<HallazgoManual> buscar(const QString& palabras) const;

private:
    QList<PaginaDelManual> paginas_;
};

// The anchor of a heading: small letters, blanks as hyphens, no punctuation.
QString anclaDeTitulo(const QString& titulo);
// For comparing: small letters without accents.
QString sinAcentos(const QString& texto);
