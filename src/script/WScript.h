// The "WScript" object of the command-line tool: Echo, Quit, Arguments and ScriptName.
#pragma once

#include "platform/vbscript/value/Object.h"

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

class WScript final : public vbs::NativeObject<WScript> {
public:
    // Echo writes UTF-8 lines to `out`; Arguments hands out `arguments`.
    WScript(std::ostream& out, const std::vector<std::string>& arguments);

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"Object"; }

    // Whether the script asked to end, and with which exit code.
    bool hasQuit() const noexcept { return m_quit; }
    int exitCode() const noexcept { return m_exitCode; }

private:
    vbs::Value echo(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value quit(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value scriptArguments(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value scriptName(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);

    std::ostream& m_out;
    std::vector<std::string> m_arguments;
    bool m_quit = false;
    int m_exitCode = 0;
};
