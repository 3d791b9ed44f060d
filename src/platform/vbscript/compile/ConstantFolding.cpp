#include "platform/vbscript/compile/ConstantFolding.h"

#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Operators.h"

namespace vbs {

namespace {

// No objects can occur.
class FoldingContext : public Context {
public:
    explicit FoldingContext(Host& theHost) : Context(theHost) {}
    Value defaultValue(const Value& /*object*/) override { raise(ErrorNumber::TypeMismatch); }
    Value call(const Value& /*procedure*/, Arguments /*arguments*/) override { raise(ErrorNumber::TypeMismatch); }
    void adopt(Object& /*object*/) noexcept override {}
    void abandon(Object& /*object*/) noexcept override {}
    void poll() override {}
    void spend(std::size_t /*work*/) override {}
};

} // namespace

Value foldConstant(const Expr& e) {
    if (e.kind == Expr::Kind::Literal) {
        return e.value;
    }
    try {
        Host host;
        FoldingContext context(host);
        return negate(context, e.a->value);
    } catch (const ScriptError&) {
        throw CompileError{ErrorNumber::ExpectedLiteral, e.at};
    }
}

} // namespace vbs
