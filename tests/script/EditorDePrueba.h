// A test of the script editor's window: a folder, settings and a running script of its own, and hands to use the
// window.
#pragma once

#include "AjustesFalsos.h"
#include "CarpetaTemporal.h"
#include "RelojDePrueba.h"
#include "platform/window/EventosQt.h"
#include "script/EditorCodigo.h"
#include "script/EjecutorScript.h"
#include "script/FrmEdicionCodigo.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <vector>

class EditorDePrueba : public QObject, private EntornoScript {
protected:
    std::unique_ptr<CarpetaTemporal> carpeta_;
    std::unique_ptr<AjustesFalsos> config_;
    std::unique_ptr<Modulo_Codigo> codigo_;
    std::unique_ptr<QWidget> principal_;
    QCheckBox* chScript_ = nullptr;
    std::vector<bool> clics_; // of chScript
    RelojDePrueba reloj_;
    EventosQt eventos_{reloj_};
    vbs::Host host_;
    std::unique_ptr<vbs::ScriptControl> motor_;
    std::unique_ptr<EjecutorScript> ejecutor_;
    QPointer<FrmEdicionCodigo> frm_;

    std::filesystem::path archivo() const { return *carpeta_ / "codigoTrelvano.txt"; }

    // Opens the window as the main window does.
    void abrir() {
        frm_ = new FrmEdicionCodigo(*codigo_, *config_, *chScript_, *ejecutor_, eventos_, principal_.get());
        frm_->show();
        frm_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(frm_, paciencia));
    }
    void abrirCon(std::string_view texto) {
        escribirArchivo(archivo(), texto);
        abrir();
    }
    template <typename Control>
    Control& control(const char* nombre) const {
        auto* hallado = frm_->findChild<Control*>(QLatin1String(nombre));
        if (hallado == nullptr)
            qFatal("no control %s", nombre);
        return *hallado;
    }
    EditorCodigo& txtCodigo() const { return control<EditorCodigo>("txtCodigo"); }
    void clic(const char* boton) const { QTest::mouseClick(&control<QAbstractButton>(boton), Qt::LeftButton); }
    void tecla(Qt::Key cual, Qt::KeyboardModifiers con = {}) const {
        QTest::keyClick(QApplication::focusWidget(), cual, con);
    }

    void preparar() {
        carpeta_ = std::make_unique<CarpetaTemporal>();
        config_ = std::make_unique<AjustesFalsos>();
        codigo_ = std::make_unique<Modulo_Codigo>(*config_, carpeta_->ruta());
        motor_ = std::make_unique<vbs::ScriptControl>(host_);
        ejecutor_ =
            std::make_unique<EjecutorScript>(*motor_, *codigo_, static_cast<EntornoScript&>(*this), eventos_, reloj_);
        principal_ = std::make_unique<QWidget>();
        chScript_ = new QCheckBox(principal_.get());
        clics_.clear();
        reloj_.porMirada = EventosQt::pausa; // events are let pass whenever they are to be
        connect(chScript_, &QCheckBox::toggled, this, [this](bool marcada) { clics_.push_back(marcada); });
    }

    void recoger() {
        principal_.reset();
        ejecutor_.reset();
        motor_.reset();
    }

private:
    // EntornoScript
    bool ejecucionActiva() const override { return true; }
    void mostrarResultado(bool /*sinError*/) override {}
    void aplazarPasada() override {}
};
