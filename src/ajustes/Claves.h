// Every key of the settings, in the order of the manual's page docs/manual/configuracion.md. A test holds the page to
// this table.
#pragma once

#include "ajustes/Ajustes.h"

#include <array>

namespace claves {

inline constexpr Clave puerto{.nombre = "PUERTO_VALOR",
                              .porDefecto = "502",
                              .significado = "puerto TCP en el que escucha la estación",
                              .cuandoVale = "en cinco segundos",
                              .lector = "shell/Estacion"};

inline constexpr Clave ver{.nombre = "ver",
                           .porDefecto = "1",
                           .significado = "`1` muestra la ventana, otro valor la oculta",
                           .cuandoVale = "en cinco segundos",
                           .lector = "shell/FrmPrincipal"};

inline constexpr Clave ejecutar{.nombre = "Codigo_Ejecutar",
                                .porDefecto = "0",
                                .significado =
                                    "`1`: \"Ejecutar\" está marcada al arrancar; la casilla escribe esta clave",
                                .cuandoVale = "al arrancar",
                                .lector = "script/AutomatizacionScript"};

inline constexpr Clave periodo{.nombre = "Ejecucion_Codigo_Milisegundos",
                               .porDefecto = "500",
                               .significado = "período de las pasadas del script, en milisegundos",
                               .cuandoVale = "al marcar \"Ejecutar\"",
                               .lector = "script/AutomatizacionScript"};

// The same key as the editor reads it. Whoever of the two comes first in an empty file leaves its own default there.
inline constexpr Clave periodoDelEditor{
    .nombre = periodo.nombre,
    .porDefecto = "0",
    .significado = "el mismo período en la casilla del editor, que escribe `0` si abre antes de una pasada",
    .cuandoVale = "al abrir el editor",
    .lector = "script/FrmEdicionCodigo"};

inline constexpr Clave puertoSerie{.nombre = "RS232_NomCOM",
                                   .porDefecto = "1",
                                   .significado = "número de puerto serie",
                                   .cuandoVale = "con \"Abrir Puerto\", si está cerrado",
                                   .lector = "serial/Modulo_RS232"};

inline constexpr Clave baudios{.nombre = "RS232_Baudios",
                               .porDefecto = "9600",
                               .significado = "velocidad",
                               .cuandoVale = "con \"Abrir Puerto\"",
                               .lector = "serial/Modulo_RS232"};

inline constexpr Clave paridad{.nombre = "RS232_Paridad",
                               .porDefecto = "N",
                               .significado = "paridad: `N`, `E`, `O`, `M` o `S`",
                               .cuandoVale = "con \"Abrir Puerto\"",
                               .lector = "serial/Modulo_RS232"};

inline constexpr Clave bitsDeDatos{.nombre = "RS232_DataBits",
                                   .porDefecto = "8",
                                   .significado = "bits de datos",
                                   .cuandoVale = "con \"Abrir Puerto\"",
                                   .lector = "serial/Modulo_RS232"};

inline constexpr Clave bitsDeParada{.nombre = "RS232_StopBit",
                                    .porDefecto = "1",
                                    .significado = "bits de parada",
                                    .cuandoVale = "con \"Abrir Puerto\"",
                                    .lector = "serial/Modulo_RS232"};

inline constexpr Clave validez{.nombre = "RS232_Cant_Intervalos_Validez",
                               .porDefecto = "2",
                               .significado = "valor de `VALIDEZ` de cada lectura nueva",
                               .cuandoVale = "con cada lectura",
                               .lector = "serial/InterpreteTramas"};

inline constexpr Clave finDeTrama1{.nombre = "Caracter_Fin_TRAMA_1",
                                   .porDefecto = "10",
                                   .significado = "código del primer carácter de fin de trama",
                                   .cuandoVale = "al abrir \"RS232\" por primera vez",
                                   .lector = "serial/Modulo_RS232"};

inline constexpr Clave finDeTrama2{.nombre = "Caracter_Fin_TRAMA_2",
                                   .porDefecto = "13",
                                   .significado = "código del segundo carácter de fin de trama",
                                   .cuandoVale = "al abrir \"RS232\" por primera vez",
                                   .lector = "serial/Modulo_RS232"};

inline constexpr Clave rutaProyecto{
    .nombre = "RutaProyecto",
    .porDefecto = "",
    .significado = "ruta de un proyecto; véase dónde está el archivo, en [Los scripts](scripts.md)",
    .cuandoVale = "en la pasada siguiente",
    .lector = "script/Modulo_Codigo",
    .seccion = "PROYECTO_PREDETERMINADO",
    .ajena = true};

inline constexpr std::array todas{&puerto,      &ver,         &ejecutar,    &periodo,     &periodoDelEditor,
                                  &puertoSerie, &baudios,     &paridad,     &bitsDeDatos, &bitsDeParada,
                                  &validez,     &finDeTrama1, &finDeTrama2, &rutaProyecto};

} // namespace claves
