// The log writer: one line about a fault, appended to two daily files in the folder "LOGS_Trelvano" of the program's
// folder. For 16 November 2026 and the executable esclavo-modbus:
//
//     LOGS_Trelvano/261116 Archivo_Log_Global.txt                   every program of the family
//     LOGS_Trelvano/261116 esclavo-modbus ArchivoLog.txt            this one
//
//     Log: 16/11/2026 10:32:05,esclavo-modbus,RS232>SetearConfig: Com:3/9600,N,8,1>detalle, DescError:...
//
// The files are Windows-1252, opened and closed within one call. A log that cannot be written never troubles its
// caller.
#pragma once

#include <ctime>
#include <filesystem>
#include <string>

// What the log writer needs of the program around it.
class EntornoDebug {
public:
    virtual ~EntornoDebug() = default;
    virtual std::tm ahora() = 0; // local time
    virtual std::filesystem::path carpetaPrograma() const = 0;
    virtual std::string nombreEjecutable() const = 0;
    virtual void mostrarErrorCritico(const std::string& texto, const std::string& titulo) = 0; // a message box
};

class Modulo_DEBUG {
public:
    // `entorno` is borrowed. `depurar`: also show every error description in a message box.
    explicit Modulo_DEBUG(EntornoDebug& entorno, bool depurar = false);

    // Appends the line to both files of the day. Line breaks in all texts but the origin become one blank each.
    // `escrito` tells whether both files took the line. Never throws. All texts are UTF-8.
    void escribirLog(bool& escrito, const std::string& origen, std::string mensaje, std::string detalle,
                     std::string descError) noexcept;

private:
    bool anotar(const std::string& texto);

    EntornoDebug& entorno_;
    bool depurar_;
};
