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
    void setScript(const std::string& file) { script_ = file; }

    // Whether the script asked to end, and with which exit code.
    bool hasQuit() const noexcept { return quit_; }
    int exitCode() const noexcept { return exitCode_; }

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

    std::ostream& out_;
    vbs::Ref<InputStream> standardInput_;
    vbs::Ref<OutputStream> standardOutput_;
    vbs::Ref<OutputStream> standardError_;
    std::vector<std::string> arguments_;
    std::string script_;
    bool quit_ = false;
    int exitCode_ = 0;
};
