// The "WScript" object of the command-line tool: Echo, Quit, Sleep, Arguments, ScriptName, ScriptFullName and the
// standard streams.
#pragma once

#include "platform/vbscript/Object.h"
#include "script/TextStream.h"

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

class WScript final : public vbs::NativeObject<WScript> {
public:
    // The streams are borrowed and carry UTF-8; Arguments hands out `arguments`.
    WScript(std::istream& in, std::ostream& out, std::ostream& errors, std::vector<std::string> arguments);

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"Object"; }

    // The file that runs from now on, as it was given; "-" for standard input.
    void setScript(const std::string& file) { m_script = file; }

    // Whether the script asked to end, and with which exit code.
    bool hasQuit() const noexcept { return m_quit; }
    int exitCode() const noexcept { return m_exitCode; }

private:
    vbs::Value echo(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value quit(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value sleep(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value scriptArguments(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value scriptName(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value scriptFullName(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value standardInput(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value standardOutput(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value standardError(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);

    std::ostream& m_out;
    vbs::Ref<InputStream> m_standardInput;
    vbs::Ref<OutputStream> m_standardOutput;
    vbs::Ref<OutputStream> m_standardError;
    std::vector<std::string> m_arguments;
    std::string m_script;
    bool m_quit = false;
    int m_exitCode = 0;
};
