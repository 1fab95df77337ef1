// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/aiuto/preferenze.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QFormLayout>
#include <QSpinBox>
#include <algorithm>

#include "app/cartella_dati.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTestoMinimo = 100;
constexpr int kTestoMassimo = 200;
constexpr int kPassoTesto = 25;

QPalette ColoriScuri() {
    QPalette colori(QColor(62, 66, 72));
    colori.setColor(QPalette::Window, QColor(45, 48, 52));
    colori.setColor(QPalette::Base, QColor(30, 32, 35));
    colori.setColor(QPalette::AlternateBase, QColor(38, 41, 45));
    colori.setColor(QPalette::Highlight, QColor(49, 111, 174));
    colori.setColor(QPalette::Link, QColor(122, 184, 245));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                             QPalette::HighlightedText, QPalette::BrightText}) {
        colori.setColor(ruolo, QColor(240, 240, 240));
    }
    colori.setColor(QPalette::ToolTipBase, QColor(38, 41, 45));
    return colori;
}

QComboBox* ElencoTesto(int scelto) {
    auto* elenco = NuovoElenco(u"cmbTesto"_s, {}, u"Quanto sono grandi tutti i testi del programma"_s);
    for (int misura = kTestoMinimo; misura <= kTestoMassimo; misura += kPassoTesto) {
        elenco->addItem(u"%1%"_s.arg(misura), misura);
    }
    elenco->setCurrentIndex(elenco->findData(scelto));
    return elenco;
}

QComboBox* ElencoCarta(const QString& scelta) {
    auto* elenco = NuovoElenco(u"cmbCarta"_s, {}, u"Il foglio su cui si stampa, anche in un file PDF"_s);
    for (const CartaDaStampa& carta : CarteOfferte()) elenco->addItem(carta.nome, carta.chiave);
    elenco->setCurrentIndex(elenco->findData(scelta));
    return elenco;
}

QSpinBox* NumeroDiCopie(int copie) {
    auto* numero = new QSpinBox;
    numero->setObjectName(u"numCopie"_s);
    numero->setRange(kMinimoCopie, kMassimoCopie);
    numero->setValue(copie);
    numero->setAccessibleName(u"Copie dell'archivio che restano"_s);
    MostraIstruzione(*numero,
                     u"Quante delle copie più nuove restano, oltre a una per ognuno degli ultimi dodici mesi"_s);
    return numero;
}

QCheckBox* NuovaSpunta(const QString& nome, const QString& scritta, bool messa) {
    auto* spunta = new QCheckBox(scritta);
    spunta->setObjectName(nome);
    spunta->setChecked(messa);
    return spunta;
}

/// The controls of the dialog.
class Scelte {
  public:
    Scelte(const Preferenze& preferenze, const QString& programma)
        : testo_(ElencoTesto(preferenze.testo)),
          colori_(NuovoElenco(u"cmbColori"_s, {u"Come il sistema"_s, u"Chiari"_s, u"Scuri"_s},
                              u"I colori delle finestre del programma"_s)),
          dalVivo_(
              NuovaSpunta(u"chkDalVivo"_s, u"Ricalcola i giorni a ogni modifica delle tappe"_s, preferenze.dalVivo)),
          carta_(ElencoCarta(preferenze.comuni.carta.chiave)),
          copie_(NumeroDiCopie(preferenze.comuni.copie)),
          portatile_(NuovaSpunta(u"chkPortatile"_s, u"Tieni i dati accanto al programma, per portarli insieme"_s,
                                 QFileInfo::exists(FilePortatile(programma)))) {
        colori_->setCurrentIndex(static_cast<int>(preferenze.colori));
        portatile_->setEnabled(PuoEsserePortatile(programma));
    }

    void Disponi(QFormLayout& layout) const {
        layout.addRow(u"&Grandezza dei testi:"_s, testo_);
        layout.addRow(u"&Colori:"_s, colori_);
        layout.addRow(u"Calcolo dal vivo:"_s, dalVivo_);
        layout.addRow(u"Ca&rta per la stampa:"_s, carta_);
        layout.addRow(u"Co&pie che restano:"_s, copie_);
        layout.addRow(u"Cartella portatile:"_s, portatile_);
        QLabel* nota = NuovaScritta(
            u"La grandezza dei testi e la cartella portatile valgono dal prossimo avvio. I viaggi di adesso si portano "
            "in un'altra cartella con File, Salva in un'altra cartella."_s);
        nota->setWordWrap(true);
        nota->setMinimumSize(nota->sizeHint());  // all of it is seen, however large the texts are
        layout.addRow(nota);
    }

    [[nodiscard]] Preferenze Fatte() const {
        return {dalVivo_->isChecked(),
                testo_->currentData().toInt(),
                static_cast<Colori>(colori_->currentIndex()),
                {copie_->value(), CarteOfferte().at(static_cast<std::size_t>(carta_->currentIndex()))}};
    }
    [[nodiscard]] bool Portatile() const { return portatile_->isChecked(); }

  private:
    QComboBox* testo_;
    QComboBox* colori_;
    QCheckBox* dalVivo_;
    QComboBox* carta_;
    QSpinBox* copie_;
    QCheckBox* portatile_;
};

// The mark of a folder that carries program and data; false when it cannot be laid or taken away.
bool SegnaPortatile(const QString& programma, bool portatile) {
    QFile segno(FilePortatile(programma));
    if (segno.exists() == portatile) return true;
    return portatile ? segno.open(QIODevice::WriteOnly) : segno.remove();
}

void AggiornaPortatile(const QString& programma, bool portatile, QWidget& finestra) {
    if (SegnaPortatile(programma, portatile)) return;
    Box(QMessageBox::Warning, u"Preferenze"_s,
        u"Il file «portatile» non si può cambiare nella cartella del programma:\n%1"_s.arg(programma), QMessageBox::Ok,
        &finestra)
        .exec();
}

}  // namespace

Preferenze LeggiPreferenze(const QSettings& aspetto) {
    const int testo = std::clamp(aspetto.value(u"testo"_s, kTestoMinimo).toInt(), kTestoMinimo, kTestoMassimo);
    const int colori = std::clamp(aspetto.value(u"colori"_s).toInt(), 0, static_cast<int>(Colori::Scuri));
    return {aspetto.value(u"dalVivo"_s).toBool(), testo - testo % kPassoTesto, static_cast<Colori>(colori),
            LeggiImpostazioni(aspetto)};
}

void RicordaPreferenze(const Preferenze& preferenze, QSettings& aspetto) {
    aspetto.setValue(u"dalVivo"_s, preferenze.dalVivo);
    aspetto.setValue(u"testo"_s, preferenze.testo);
    aspetto.setValue(u"colori"_s, static_cast<int>(preferenze.colori));
    RicordaImpostazioni(preferenze.comuni, aspetto);
}

void ApplicaTesto(const Preferenze& preferenze) {
    if (preferenze.testo == kTestoMinimo) return;
    QFont testo = QApplication::font();
    testo.setPointSizeF(testo.pointSizeF() * preferenze.testo / kTestoMinimo);
    QApplication::setFont(testo);
}

void ApplicaColori(const Preferenze& preferenze) {
    switch (preferenze.colori) {
        case Colori::ComeIlSistema:
            return QApplication::setPalette(QPalette());
        case Colori::Chiari:
            return QApplication::setPalette(ConDisabilitatiLeggibili(QPalette(QColor(239, 239, 239))));
        case Colori::Scuri:
            return QApplication::setPalette(ConDisabilitatiLeggibili(ColoriScuri()));
    }
}

bool ChiediPreferenze(Preferenze& preferenze, const QString& programma, QWidget& finestra) {
    QDialog dialogo(&finestra);
    dialogo.setObjectName(u"preferenze"_s);
    MostraTitolo(dialogo, u"Preferenze"_s);
    const Scelte scelte(preferenze, programma);
    auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(bottoni, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(bottoni, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    auto* layout = Spaziato(new QFormLayout(&dialogo), Spazi::Dialogo);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    scelte.Disponi(*layout);
    layout->addRow(bottoni);
    if (dialogo.exec() != QDialog::Accepted) return false;
    preferenze = scelte.Fatte();
    AggiornaPortatile(programma, scelte.Portatile(), finestra);
    return true;
}

}  // namespace cronovia
