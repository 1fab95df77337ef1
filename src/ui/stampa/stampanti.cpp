// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/stampa/stampanti.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "interaction/failure.h"
#include "print/file_pdf.h"
#include "print/pittore.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/lettura.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The toolbar's own buttons would print past the print run, or turn sheets that are always upright.
void SoloDaVedere(const QPrintPreviewDialog& anteprima) {
    for (const char* nome : {"Print", "Page setup", "Portrait", "Landscape"}) {
        const QString testo = QCoreApplication::translate("QPrintPreviewDialog", nome);
        for (QAction* azione : anteprima.findChildren<QAction*>()) {
            if (azione->text() != testo) continue;
            azione->setEnabled(false);
            azione->setVisible(false);
        }
    }
}

// What the toolbar and the pages do not say of themselves to those who hear them.
void Nomina(const QPrintPreviewDialog& anteprima) {
    for (QComboBox* elenco : anteprima.findChildren<QComboBox*>()) EtichettaNascosta(u"Ingrandimento"_s, *elenco);
    for (QLineEdit* casella : anteprima.findChildren<QLineEdit*>()) {
        const bool sola = qobject_cast<QComboBox*>(casella->parentWidget()) == nullptr;
        casella->setAccessibleName(sola ? u"Pagina"_s : u"Ingrandimento"_s);
    }
    for (QGraphicsView* pagine : anteprima.findChildren<QGraphicsView*>()) {
        LettoCome(*pagine, QAccessible::Canvas, u"Pagine da stampare"_s);
        pagine->setFocus();  // so that keys move them from the start
    }
}

}  // namespace

Stampanti StampantiDelSistema() {
    return {&QPrinterInfo::availablePrinterNames, &QPrinterInfo::defaultPrinterName, [](const QString& nome) {
                return std::make_unique<QPrinter>(QPrinterInfo::printerInfo(nome), QPrinter::HighResolution);
            }};
}

QString ChiediFilePdf(QWidget& finestra, const QString& titolo) {
    const QDir documenti(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialogo(&finestra, u"Stampa su file PDF"_s, documenti.path(), u"File PDF (*.pdf)"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"pdf"_s);
    dialogo.selectFile(NomeDiFile(titolo, u"Stampa") + u".pdf"_s);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

void StampaSuFile(const Stampato& documento, const QString& path, Progress& progress) {
    RifiutaFileEsistente(path, true);
    FileIntero file(path);
    ScriviPdf(documento, file, progress);
    file.Chiudi();
}

void StampaSuStampante(const Stampato& documento, const QString& stampante, const Stampanti& stampanti,
                       Interaction& interaction, Progress& progress) {
    const bool presente = stampanti.nomi().contains(stampante);
    const QString nome = presente ? stampante : stampanti.predefinita();
    const QString manca = u"La stampante «%1» non c'è più"_s.arg(stampante);
    if (nome.isEmpty()) throw Failure(manca + u": niente è stato stampato."_s);
    if (!presente) interaction.Show({manca + u": la stampa va su «%1»."_s.arg(nome), {}, Icon::Exclamation});
    const std::unique_ptr<QPrinter> carta = stampanti.apri(nome);
    carta->setDocName(documento.titolo);
    carta->setCreator(u"Cronovia"_s);
    Dipingi(documento, *carta, progress);
    if (carta->printerState() == QPrinter::Error) {
        throw Failure(u"La stampa su «%1» non è riuscita."_s.arg(nome));
    }
}

void MostraAnteprima(const Stampato& documento, QWidget& finestra, Interaction& interaction) {
    QPrinter carta(QPrinter::HighResolution);
    carta.setDocName(documento.titolo);
    QPrintPreviewDialog anteprima(&carta, &finestra);
    anteprima.setObjectName(u"anteprima"_s);
    MostraTitolo(anteprima, u"Anteprima di stampa - "_s + documento.titolo);
    anteprima.resize(finestra.size());
    SoloDaVedere(anteprima);
    Nomina(anteprima);
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, &anteprima, [&](QPrinter* stampante) {
        try {
            Progress progress;
            Dipingi(documento, *stampante, progress);
        } catch (const Failure& failure) {
            interaction.Show({failure.Message(), {}, Icon::Exclamation});
        }
    });
    anteprima.exec();
}

}  // namespace cronovia
