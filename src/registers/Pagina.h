// The page of a slave as plain state: its four check boxes and the size of its grid.
//
// The store owns one Pagina for every slave that exists; the window's VistaPagina shows it and writes the boxes. A
// register that changes marks the page: the observer hears of the first mark only and clears it when it has painted,
// so a burst of writes costs one call.
#pragma once

class Pagina;

class ObservadorPagina {
public:
    virtual void paginaCambiada(Pagina& pagina) = 0;

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
        if (necesarias > filas_)
            filas_ = necesarias;
        if (!marcada_) {
            marcada_ = true;
            if (observador_ != nullptr)
                observador_->paginaCambiada(*this);
        }
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
    ObservadorPagina* observador_ = nullptr;
};
