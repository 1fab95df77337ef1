// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/modulo.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMetaProperty>
#include <QPushButton>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

class Modulo : public QDialog {
  public:
    Modulo(QWidget& finestra, const RichiestaModulo& richiesta)
        : QDialog(&finestra), richiesta_(richiesta), caselle_(richiesta.valori.size()) {
        MostraTitolo(*this, richiesta.titolo);
        setObjectName(u"modulo"_s);
        auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Dialogo);
        if (!richiesta.testo.isEmpty()) layout->addWidget(NuovaScritta(richiesta.testo));
        for (const GruppoModulo& gruppo : richiesta.gruppi) layout->addWidget(CreaGruppo(gruppo));
        auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        pulsanti->button(QDialogButtonBox::Ok)->setDefault(true);
        pulsanti->button(QDialogButtonBox::Cancel)->setText(u"Annulla"_s);
        layout->addWidget(pulsanti);
        connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    // Whatever is wrong stays as it was typed, to be put right.
    void accept() override {
        const auto difetto = richiesta_.difetto(Valori());
        if (!difetto) return QDialog::accept();
        Box(QMessageBox::Warning, windowTitle(), difetto->second, QMessageBox::Ok, this).exec();
        QWidget& casella = *caselle_.at(static_cast<std::size_t>(difetto->first));
        casella.setFocus();
        QMetaObject::invokeMethod(&casella, "selectAll");
    }

    [[nodiscard]] std::vector<QString> Valori() const {
        std::vector<QString> valori = richiesta_.valori;
        for (std::size_t i = 0; i < valori.size(); ++i) {
            if (caselle_[i] == nullptr) continue;
            valori[i] = caselle_[i]->metaObject()->userProperty().read(caselle_[i]).toString().trimmed();
        }
        return valori;
    }

  private:
    QWidget* CreaGruppo(const GruppoModulo& gruppo) {
        auto* riquadro = new QGroupBox(gruppo.titolo);
        auto* layout = Spaziato(new QFormLayout(riquadro), Spazi::Pagina);
        for (const std::vector<CampoModulo>& campi : gruppo.righe) {
            auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
            for (const CampoModulo& campo : campi) {
                QWidget* casella = CreaCasella(campo);
                if (&campo != &campi.front()) riga->addWidget(NuovaEtichetta(campo.scritta, *casella));
                riga->addWidget(casella);
            }
            if (campi.back().caratteri > 0) riga->addStretch();
            QWidget& prima = *caselle_[static_cast<std::size_t>(campi.front().valore)];
            layout->addRow(NuovaEtichetta(campi.front().scritta, prima), riga);
        }
        return riquadro;
    }

    QWidget* CreaCasella(const CampoModulo& campo) {
        const auto indice = static_cast<std::size_t>(campo.valore);
        if (campo.righe > 1) {
            QPlainTextEdit* lunga = NuovaCasellaLunga(campo.nome, campo.righe, campo.istruzione);
            lunga->setPlainText(richiesta_.valori.at(indice));
            return caselle_.at(indice) = lunga;
        }
        QLineEdit* casella = NuovaCasella(campo.nome, campo.massimo, campo.istruzione);
        casella->setPlaceholderText(campo.esempio);
        casella->setText(richiesta_.valori.at(indice));
        casella->setCursorPosition(0);
        constexpr int kBordo = 16;
        if (campo.caratteri > 0) LarghezzaPer(*casella, campo.caratteri, kBordo);
        return caselle_.at(indice) = casella;
    }

    const RichiestaModulo& richiesta_;
    std::vector<QWidget*> caselle_;  // by value; null where none is shown
};

}  // namespace

std::optional<std::vector<QString>> ChiediModulo(QWidget& finestra, const RichiestaModulo& richiesta) {
    Modulo modulo(finestra, richiesta);
    if (modulo.exec() != QDialog::Accepted) return std::nullopt;
    return modulo.Valori();
}

}  // namespace cronovia
