#include "platform/vbscript/value/Object.h"

#include <vector>

namespace vbs {

namespace {

// A chain of a million objects must not be freed by a million nested calls: beyond a certain depth objects wait here.
struct Graveyard {
    int depth = 0;
    std::vector<Object*> waiting;
};

Graveyard& graveyard() {
    static thread_local Graveyard yard;
    return yard;
}

constexpr int maxNestedDeaths = 40;

} // namespace

std::unique_ptr<Enumerator> Object::enumerate(Context& /*context*/) {
    raise(ErrorNumber::NotACollection);
}

void Object::lastReferenceGone(Object* object) noexcept {
    Graveyard& yard = graveyard();
    if (yard.depth >= maxNestedDeaths) {
        yard.waiting.push_back(object);
        return;
    }
    ++yard.depth;
    const auto bury = [](Object* dying) {
        dying->references = 1; // finalize() may hand out references and take them back
        dying->finalize();
        if (--dying->references == 0) {
            delete dying;
        }
    };
    bury(object);
    if (yard.depth == 1) {
        while (!yard.waiting.empty()) {
            Object* next = yard.waiting.back();
            yard.waiting.pop_back();
            bury(next);
        }
    }
    --yard.depth;
}

} // namespace vbs
