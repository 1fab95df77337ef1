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
#include <QStyle>
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
    colori.setColor(QPalette::Highlight, QColor(61, 122, 184));
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
    return {aspetto.value(u"dalVivo"_s).toBool(), testo - testo % kPassoTesto, static_cast<Colori>(colori)};
}

void RicordaPreferenze(const Preferenze& preferenze, QSettings& aspetto) {
    aspetto.setValue(u"dalVivo"_s, preferenze.dalVivo);
    aspetto.setValue(u"testo"_s, preferenze.testo);
    aspetto.setValue(u"colori"_s, static_cast<int>(preferenze.colori));
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
    QComboBox* testo = ElencoTesto(preferenze.testo);
    QComboBox* colori = NuovoElenco(u"cmbColori"_s, {u"Come il sistema"_s, u"Chiari"_s, u"Scuri"_s},
                                    u"I colori delle finestre del programma"_s);
    colori->setCurrentIndex(static_cast<int>(preferenze.colori));
    auto* dalVivo = new QCheckBox(u"Ricalcola i giorni a ogni modifica delle tappe"_s);
    dalVivo->setObjectName(u"chkDalVivo"_s);
    dalVivo->setChecked(preferenze.dalVivo);
    auto* portatile = new QCheckBox(u"Tieni i dati accanto al programma, per portarli insieme"_s);
    portatile->setObjectName(u"chkPortatile"_s);
    portatile->setChecked(QFileInfo::exists(FilePortatile(programma)));
    portatile->setEnabled(QFileInfo(programma).isWritable());
    auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(bottoni, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(bottoni, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    auto* layout = Spaziato(new QFormLayout(&dialogo), Spazi::Dialogo);
    layout->addRow(u"Grandezza dei testi:"_s, testo);
    layout->addRow(u"Colori:"_s, colori);
    layout->addRow(u"Calcolo dal vivo:"_s, dalVivo);
    layout->addRow(u"Cartella portatile:"_s, portatile);
    layout->addRow(NuovaScritta(
        u"La grandezza dei testi e la cartella portatile valgono dal prossimo avvio. I viaggi di adesso si portano in "
        "un'altra cartella\ncon File, Salva in un'altra cartella."_s));
    layout->addRow(bottoni);
    if (dialogo.exec() != QDialog::Accepted) return false;
    preferenze = {dalVivo->isChecked(), testo->currentData().toInt(), static_cast<Colori>(colori->currentIndex())};
    AggiornaPortatile(programma, portatile->isChecked(), finestra);
    return true;
}

}  // namespace cronovia
