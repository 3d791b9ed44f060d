// Says where it is: the tests start it through links and copies.
#include "platform/system/CarpetaPrograma.h"

#include <cstdio>

int main() {
    std::printf("%s|%s", rutaEjecutable().c_str(), carpetaPrograma().c_str());
}
