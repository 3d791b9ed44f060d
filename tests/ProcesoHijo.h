// Runs a function in a forked child, so that a test can give up privileges or set limits without harm to itself.
#pragma once

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What the function returned in the child (0 to 255), or -1 when the child did not get to its end.
inline int enProcesoHijo(const std::function<int()>& funcion) {
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        int resultado = 255;
        try {
            resultado = funcion();
        } catch (...) {
            resultado = 254;
        }
        ::_exit(resultado);
    }
    int estado = 0;
    if (hijo < 0 || ::waitpid(hijo, &estado, 0) != hijo || !WIFEXITED(estado))
        return -1;
    return WEXITSTATUS(estado);
}

// In a child: from here on an ordinary user, to whom permissions apply (a test may be run by root).
inline bool soltarPrivilegios() {
    return ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
}

// In a child: files cannot grow beyond this; a write beyond it fails, as on a full disk.
inline bool limitarArchivos(rlim_t bytes) {
    const rlimit limite{bytes, bytes};
    return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &limite) == 0;
}
