// How the lines of a chart are told apart: colour, dash and width.
#pragma once

#include <QColor>

#include <array>
#include <string_view>

struct Trazo {
    QRgb claro;  // on a light ground
    QRgb oscuro; // on a dark one
    Qt::PenStyle guion;
};
// Told apart without colours too: every line has a dash or a width of its own.
constexpr std::array<Trazo, 8> trazos{{
    {0xff1f5fbf, 0xff7fb2ff, Qt::SolidLine},
    {0xffb3261e, 0xffff8a80, Qt::DashLine},
    {0xff1b7f3b, 0xff7fe0a0, Qt::DotLine},
    {0xff7a3fb0, 0xffcf9fff, Qt::DashDotLine},
    {0xff9a5b00, 0xffffc266, Qt::DashDotDotLine},
    {0xff00798c, 0xff6fe3f2, Qt::SolidLine},
    {0xff8c1d5f, 0xffff9fd0, Qt::DashLine},
    {0xff4d4d4d, 0xffd0d0d0, Qt::DotLine},
}};

constexpr qreal grosor(std::size_t linea) {
    return linea < 5 ? 1.6 : 2.8;
}

// Whether the dash of a line has ink at that multiple of its width; as the window system draws it in the legend.
inline bool conTinta(std::size_t linea, std::size_t lugar) {
    const auto en = [lugar](std::string_view dibujo) { return dibujo[lugar % dibujo.size()] == '#'; };
    switch (trazos[linea % trazos.size()].guion) {
    case Qt::DashLine:
        return en("####  ");
    case Qt::DotLine:
        return en("#  ");
    case Qt::DashDotLine:
        return en("####  #  ");
    case Qt::DashDotDotLine:
        return en("####  #  #  ");
    default:
        return true;
    }
}
