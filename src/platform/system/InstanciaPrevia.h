// The previous-instance flag: one running copy of an executable file for each user.
//
// The first copy holds an abstract socket address made of the user and the file's real path for as long as the object
// lives. The kernel frees the address with the process, however that ends: no file is left behind.
//
//     const InstanciaPrevia instancia(rutaEjecutable());
//     if (instancia.hayOtra()) ...
#pragma once

#include "platform/posix/Descriptor.h"

#include <filesystem>

class InstanciaPrevia {
public:
    // `ejecutable` may lead to the file by any links.
    explicit InstanciaPrevia(const std::filesystem::path& ejecutable);

    // Whether another copy was running when this object was made. False when the system gave no answer.
    bool hayOtra() const { return hayOtra_; }

private:
    Descriptor socket_;
    bool hayOtra_ = false;
};
