// What the serial link needs from the rest of the program. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

// The log files: one line for each call. Never fails.
class LogSerie {
public:
    virtual void escribirLog(std::string_view origen, std::string_view mensaje, std::string_view detalle,
                             std::string_view descripcionError) = 0;

protected:
    ~LogSerie() = default;
};

// The script engine of the main window.
class MotorSerie {
public:
    // Executes the text at once. Raises a std::exception when the text is rejected or fails.
    virtual void AddCode(std::string_view codigo) = 0;

protected:
    ~MotorSerie() = default;
};
