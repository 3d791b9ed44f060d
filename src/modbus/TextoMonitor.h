// The text of a monitor: lines gathered at the end, emptied whole when it grows past its limit.
//
// One byte is one character (Latin-1), so the length in bytes is the length that the limit counts. A text box follows
// the monitor from afar: its observer hears of the first change only, later reads what was added since the position
// that it has shown (everything, when the generation says that the text started over), and calls visto().
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class ObservadorTexto {
public:
    virtual void textoCambiado() = 0;

protected:
    ~ObservadorTexto() = default;
};

class TextoMonitor {
public:
    static constexpr std::size_t limitePorDefecto = 60000; // characters; a text of exactly this length is kept

    explicit TextoMonitor(std::size_t limite = limitePorDefecto) : limite_(limite) {}
    TextoMonitor(const TextoMonitor&) = delete;
    TextoMonitor& operator=(const TextoMonitor&) = delete;

    // Appends the line as it stands (its CR LF included); a text longer than the limit then becomes empty.
    void agregar(std::string_view linea) {
        texto_.append(linea);
        if (texto_.size() > limite_) {
            texto_.clear();
            ++generacion_;
        }
        avisar();
    }

    void borrar();

    std::string_view texto() const { return texto_; }

    // Counts how often the text started over, and how often of these by borrar().
    std::uint64_t generacion() const { return generacion_; }
    std::uint64_t borrados() const { return borrados_; }

    // Borrowed; null detaches. At most one. It is called at the first change after visto().
    void observar(ObservadorTexto* observador) { observador_ = observador; }
    void visto() { avisado_ = false; }

private:
    void avisar() {
        if (!avisado_ && observador_ != nullptr) {
            avisado_ = true;
            observador_->textoCambiado();
        }
    }

    std::string texto_;
    std::size_t limite_;
    std::uint64_t generacion_ = 0;
    std::uint64_t borrados_ = 0;
    bool avisado_ = false;
    ObservadorTexto* observador_ = nullptr;
};
