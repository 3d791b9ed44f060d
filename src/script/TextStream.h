// Standard input, output and error as the objects that WScript.StdIn, WScript.StdOut and WScript.StdErr give. UTF-8
// outside, UTF-16 in the script.
#pragma once

#include "platform/vbscript/Object.h"

#include <iosfwd>
#include <optional>
#include <span>
#include <string>

// The next line without its end; nothing at the end of the input.
std::optional<std::string> nextLine(std::istream& in);

// Read(n), ReadLine, ReadAll, SkipLine, AtEndOfLine, AtEndOfStream. Error 62 where nothing is left to be read.
class InputStream final : public vbs::NativeObject<InputStream> {
public:
    // Borrowed. `out` is flushed before anything is read, so that a question stands on the screen first.
    InputStream(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"TextStream"; }

private:
    vbs::Value read(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value readLine(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value readAll(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value skipLine(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value atEndOfLine(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value atEndOfStream(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    int peek();
    void requireMore();

    std::istream& in_;
    std::ostream& out_;
};

// Write(text), WriteLine([text]), WriteBlankLines(n).
class OutputStream final : public vbs::NativeObject<OutputStream> {
public:
    explicit OutputStream(std::ostream& out) : out_(out) {} // borrowed

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"TextStream"; }

private:
    vbs::Value write(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value writeLine(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);
    vbs::Value writeBlankLines(vbs::Context& context, vbs::Access access, vbs::Arguments arguments);

    std::ostream& out_;
};
