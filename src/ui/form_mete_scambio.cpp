// The exchange screen in the window.
#include "ui/comuni/controlli.h"
#include "ui/form_mete.h"
#include "ui/scambio/file_scambio.h"

namespace cronovia {

void FormMete::CollegaScambio() {
    connect(export_, &FrmExport::Trasferisce, this, [this](int griglia, int riga) {
        Esegui([&] { scrivania_.SulloScambio([&](TavoloScambio& tavolo) { tavolo.TrasferisceMeta(griglia, riga); }); });
    });
    connect(export_, &FrmExport::TrasferisceTutte, this, [this](int griglia) {
        Esegui([&] { scrivania_.SulloScambio([&](TavoloScambio& tavolo) { tavolo.TrasferisceTutte(griglia); }); });
    });
    connect(export_, &FrmExport::ImExp, this, [this] {
        avanzamento_->NuovaOperazione();
        Esegui([this] { scrivania_.ImExp([this] { return ScegliFileDaEsportare(*this); }); });
        if (!scrivania_.Scambio()) griglia_->setFocus();
    });
    connect(export_, &FrmExport::Fine, this, [this] {
        Esegui([this] { scrivania_.FineScambio(); });
        griglia_->setFocus();
    });
    connect(bottoni_, &FrmBottoni::Converte, this, [this] {
        avanzamento_->NuovaOperazione();
        Esegui([this] { scrivania_.Converte(); });
    });
    auto* ricezione = new RicezioneFile(*this);
    for (QWidget* riquadro :
         {static_cast<QWidget*>(periodo_), static_cast<QWidget*>(velocita_), static_cast<QWidget*>(tempi_)}) {
        for (QLineEdit* casella : riquadro->findChildren<QLineEdit*>()) LasciaAnnullare(*casella);
    }
    connect(ricezione, &RicezioneFile::Arrivato, this, &FormMete::ApriFile);
}

void FormMete::Scambio(Comando comando) {
    avanzamento_->NuovaOperazione();
    Esegui([&] {
        if (comando == Comando::Export) {
            scrivania_.Export();
        } else {
            scrivania_.Import([this] { return ScegliFileDaImportare(*this); });
        }
    });
    if (scrivania_.Scambio()) export_->FuocoSullaScelta(scrivania_.Scambio()->Modo());
}

void FormMete::ApriFile(const QString& file) {
    avanzamento_->NuovaOperazione();
    Esegui([&] { scrivania_.ApriFile(file); });
    if (scrivania_.Scambio()) export_->FuocoSullaScelta(scrivania_.Scambio()->Modo());
}

void FormMete::MostraScambio() {
    const auto& scambio = scrivania_.Scambio();
    if (scambio) export_->Mostra(*scambio, scrivania_.CalcoloInCorso());
    export_->setVisible(scambio.has_value());
    findChild<QWidget*>(QStringLiteral("areaGriglia"))->setVisible(!scambio);
}

}  // namespace cronovia
