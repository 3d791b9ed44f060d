// The page of a slave as plain state: its four check boxes and the size of its grid.
//
// The store owns one Pagina for every slave that exists; the window's VistaPagina shows it and writes the boxes. A
// register that changes marks the page: the observer hears of the first mark only and clears it when it has painted,
// so a burst of writes costs one call. Of new rows it hears at once.
#pragma once

#include <map>
#include <optional>

class Pagina;

class ObservadorPagina {
public:
    virtual void paginaCambiada(Pagina& pagina) = 0;
    virtual void filasAgregadas(Pagina& pagina) = 0; // filas() has grown

protected:
    ~ObservadorPagina() = default;
};

class Pagina {
public:
    explicit Pagina(int numero) : numero_(numero) {}
    Pagina(const Pagina&) = delete;
    Pagina& operator=(const Pagina&) = delete;

    int numero() const { return numero_; } // the slave number, from 0

    // The check boxes "Recibir Lecturas", "Responder Lecturas", "Recibir Escrituras", "Responder Escrituras".
    bool recibir = true;
    bool responder = true;
    bool recibirEscrituras = true;
    bool responderEscrituras = true;

    // Rows of the grid, the heading row included. A new grid has 7; rows are only ever appended.
    int filas() const { return filas_; }

    // Marks the page after a change of register `direccion` (from 0), appending the rows that the grid lacks for it.
    void mostrar(int direccion) {
        const int necesarias = direccion / registrosPorFila + 2;
        if (necesarias > filas_) {
            filas_ = necesarias;
            if (observador_ != nullptr)
                observador_->filasAgregadas(*this);
        }
        if (!marcada_) {
            marcada_ = true;
            if (observador_ != nullptr)
                observador_->paginaCambiada(*this);
        }
    }

    // A register written at a fractional address that rounds up to the next row is shown in the row of the address as
    // it was given: cell `celda` (numbered as its register) shows `valor` until it is written again, and the register's
    // own cell `direccion` goes on showing `anterior`.
    void mostrarEnOtraCelda(int direccion, double anterior, int celda, double valor) {
        ajenas_.try_emplace(direccion, anterior);
        ajenas_[celda] = valor;
        mostrar(celda);
    }
    // The register was written at its own address: its cell shows it again.
    void mostrarEnSuCelda(int direccion) {
        if (!ajenas_.empty())
            ajenas_.erase(direccion);
        mostrar(direccion);
    }
    // What the cell of that register shows instead of it, if anything.
    std::optional<double> ajena(int direccion) const {
        const auto hallada = ajenas_.find(direccion);
        return hallada != ajenas_.end() ? std::optional(hallada->second) : std::nullopt;
    }

    bool marcada() const { return marcada_; }
    void desmarcar() { marcada_ = false; }

    // Borrowed; null detaches. At most one.
    void observar(ObservadorPagina* observador) { observador_ = observador; }

    static constexpr int registrosPorFila = 10;

private:
    int numero_;
    int filas_ = 7;
    bool marcada_ = false;
    std::map<int, double> ajenas_; // cells that show another value than their register's; nearly always none
    ObservadorPagina* observador_ = nullptr;
};
