#include "platform/window/TextosQt.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Texto {
    std::string_view original;
    const char* traducido;
};

constexpr std::array textos{
    // buttons
    Texto{"OK", "Aceptar"},
    Texto{"&OK", "&Aceptar"},
    Texto{"Cancel", "Cancelar"},
    Texto{"&Cancel", "&Cancelar"},
    Texto{"Close", "Cerrar"},
    Texto{"&Close", "&Cerrar"},
    Texto{"&Yes", "&Sí"},
    Texto{"&No", "&No"},
    // text boxes
    Texto{"&Undo", "&Deshacer"},
    Texto{"&Redo", "&Rehacer"},
    Texto{"Cu&t", "Cor&tar"},
    Texto{"&Copy", "&Copiar"},
    Texto{"Copy &Link Location", "Copiar &dirección del enlace"},
    Texto{"&Paste", "&Pegar"},
    Texto{"Delete", "Eliminar"},
    Texto{"Select All", "Seleccionar todo"},
    Texto{"Insert Unicode control character", "Insertar carácter de control Unicode"},
    Texto{"Select all", "Seleccionar todo"},
    Texto{"&Select All", "&Seleccionar todo"},
    Texto{"&Step up", "&Aumentar"},
    Texto{"Step &down", "&Disminuir"},
    Texto{"Clear", "Borrar"},
    // names of keys
    Texto{"Shift", "Mayús"},
    Texto{"Return", "Intro"},
    Texto{"Enter", "Intro"},
    Texto{"Space", "Espacio"},
    Texto{"Del", "Supr"},
    Texto{"Home", "Inicio"},
    Texto{"End", "Fin"},
    Texto{"PgUp", "Re Pág"},
    Texto{"PgDown", "Av Pág"},
    Texto{"Left", "Izquierda"},
    Texto{"Right", "Derecha"},
    Texto{"Up", "Arriba"},
    Texto{"Down", "Abajo"},
    // choosing a file
    Texto{"Open", "Abrir"},
    Texto{"&Open", "&Abrir"},
    Texto{"Save", "Guardar"},
    Texto{"&Save", "&Guardar"},
    Texto{"Save As", "Guardar como"},
    Texto{"&Choose", "&Elegir"},
    Texto{"Look in:", "Buscar en:"},
    Texto{"File &name:", "&Nombre:"},
    Texto{"Directory:", "Carpeta:"},
    Texto{"Files of type:", "Tipo:"},
    Texto{"All Files (*)", "Todos los archivos (*)"},
    Texto{"All files (*)", "Todos los archivos (*)"},
    Texto{"Back", "Atrás"},
    Texto{"Go back", "Volver atrás"},
    Texto{"Forward", "Adelante"},
    Texto{"Go forward", "Ir adelante"},
    Texto{"Parent Directory", "Carpeta de arriba"},
    Texto{"Go to the parent directory", "Ir a la carpeta de arriba"},
    Texto{"Create New Folder", "Carpeta nueva"},
    Texto{"Create a New Folder", "Crea una carpeta nueva"},
    Texto{"New Folder", "Carpeta nueva"},
    Texto{"&New Folder", "Carpeta &nueva"},
    Texto{"List View", "Lista"},
    Texto{"Change to list view mode", "Mostrar como lista"},
    Texto{"Detail View", "Detalles"},
    Texto{"Change to detail view mode", "Mostrar con detalles"},
    Texto{"Sidebar", "Lugares"},
    Texto{"List of places and bookmarks", "Lista de lugares"},
    Texto{"Files", "Archivos"},
    Texto{"Recent Places", "Lugares recientes"},
    Texto{"Computer", "Equipo"},
    Texto{"My Computer", "Equipo"},
    Texto{"&Rename", "Cambiar &nombre"},
    Texto{"&Delete", "&Eliminar"},
    Texto{"Remove", "Quitar"},
    Texto{"Show &hidden files", "Mostrar los archivos &ocultos"},
    Texto{"Show ", "Mostrar "}, // and the name of a column
    Texto{"Name", "Nombre"},
    Texto{"Size", "Tamaño"},
    Texto{"Kind", "Tipo"},
    Texto{"Type", "Tipo"},
    Texto{"Date Modified", "Modificado"},
    Texto{"File", "Archivo"},
    Texto{"%1 File", "Archivo %1"},
    Texto{"Folder", "Carpeta"},
    Texto{"File Folder", "Carpeta"},
    Texto{"Drive", "Unidad"},
    Texto{"Shortcut", "Enlace"},
    Texto{"Unknown", "Desconocido"},
    Texto{"%n byte(s)", "%n bytes"},
    Texto{"%1 bytes", "%1 bytes"},
    Texto{"Invalid filename", "Nombre no válido"},
    Texto{"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no "
          "punctuation marks.",
          "<b>No se puede usar el nombre «%1».</b><p>Pruebe otro más corto o sin signos de puntuación."},
    Texto{"%1 already exists.\nDo you want to replace it?", "%1 ya existe.\n¿Quiere reemplazarlo?"},
    Texto{"%1\nFile not found.\nPlease verify the correct file name was given.",
          "%1\nNo se encuentra el archivo.\nCompruebe el nombre."},
    Texto{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
          "%1\nNo se encuentra la carpeta.\nCompruebe el nombre."},
    Texto{"'%1' is write protected.\nDo you want to delete it anyway?",
          "«%1» está protegido contra escritura.\n¿Quiere eliminarlo igualmente?"},
    Texto{"Are you sure you want to delete '%1'?", "¿Seguro que quiere eliminar «%1»?"},
    Texto{"Could not delete directory.", "No se pudo eliminar la carpeta."},
    Texto{"Show Details...", "Mostrar detalles…"},
    Texto{"Hide Details...", "Ocultar detalles…"},
    // scroll bars
    Texto{"Scroll here", "Desplazar hasta aquí"},
    Texto{"Left edge", "Borde izquierdo"},
    Texto{"Right edge", "Borde derecho"},
    Texto{"Top", "Principio"},
    Texto{"Bottom", "Final"},
    Texto{"Page left", "Página a la izquierda"},
    Texto{"Page right", "Página a la derecha"},
    Texto{"Page up", "Página arriba"},
    Texto{"Page down", "Página abajo"},
    Texto{"Scroll left", "Desplazar a la izquierda"},
    Texto{"Scroll right", "Desplazar a la derecha"},
    Texto{"Scroll up", "Desplazar arriba"},
    Texto{"Scroll down", "Desplazar abajo"},
};

} // namespace

QString TextosQt::translate(const char* /*contexto*/, const char* original, const char* /*aclaracion*/,
                            int /*cantidad*/) const {
    const auto hallado = std::find_if(textos.begin(), textos.end(),
                                      [original](const Texto& texto) { return texto.original == original; });
    return hallado != textos.end() ? QString::fromUtf8(hallado->traducido) : QString();
}
