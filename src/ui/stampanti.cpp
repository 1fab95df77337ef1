#include "ui/stampanti.h"

#include <QDir>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>

#include "interaction/failure.h"
#include "print/file_pdf.h"
#include "print/pittore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Pages that the person chose in the printer's dialog; all when none were.
Documento Scelte(const Documento& documento, const QPrinter& stampante) {
    const auto ultima = static_cast<std::size_t>(std::max(stampante.toPage(), 0));
    if (ultima == 0 || documento.pagine.empty()) return documento;
    const auto da = std::min(static_cast<std::size_t>(std::max(stampante.fromPage(), 1)), documento.pagine.size());
    const auto a = std::clamp(ultima, da, documento.pagine.size());
    const auto inizio = documento.pagine.begin();
    return {documento.titolo, {inizio + static_cast<std::ptrdiff_t>(da - 1), inizio + static_cast<std::ptrdiff_t>(a)}};
}

QString NomeFile(QString titolo) { return titolo.remove(QRegularExpression(u"[\\\\/:*?\"<>|]"_s)).simplified(); }

}  // namespace

QStringList NomiStampanti() { return QPrinterInfo::availablePrinterNames() << u"File PDF"_s; }

QString StampantePredefinita() {
    const QString nome = QPrinterInfo::defaultPrinterName();
    const QStringList nomi = NomiStampanti();
    return nomi.contains(nome) ? nome : nomi.first();
}

bool UnFilePdf(const QString& stampante) { return stampante == "File PDF"_L1; }

QString ChiediFilePdf(QWidget& finestra, const QString& titolo) {
    const QDir documenti(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialogo(&finestra, u"Stampa su file PDF"_s, documenti.path(), u"File PDF (*.pdf)"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"pdf"_s);
    dialogo.selectFile(NomeFile(titolo) + u".pdf"_s);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

void StampaSuFile(const Documento& documento, const QString& path, Progress& progress) {
    RifiutaFileEsistente(path, true);
    FileIntero file(path);
    ScriviPdf(documento, file, progress);
    file.Chiudi();
}

void StampaSuStampante(const Documento& documento, const QString& stampante, Interaction& interaction,
                       Progress& progress) {
    const bool presente = QPrinterInfo::availablePrinterNames().contains(stampante);
    const QString nome = presente ? stampante : QPrinterInfo::defaultPrinterName();
    const QString manca = u"La stampante «%1» non c'è più"_s.arg(stampante);
    if (nome.isEmpty()) throw Failure(manca + u": niente è stato stampato."_s);
    if (!presente) interaction.Show({manca + u": la stampa va su «%1»."_s.arg(nome), {}, Icon::Exclamation});
    QPrinter carta(QPrinter::HighResolution);
    carta.setPrinterName(nome);
    carta.setDocName(documento.titolo);
    carta.setCreator(u"Cronovia"_s);
    Dipingi(documento, carta, progress);
    if (carta.printerState() == QPrinter::Error) {
        throw Failure(u"La stampa su «%1» non è riuscita."_s.arg(nome));
    }
}

void MostraAnteprima(const Documento& documento, QWidget& finestra, Interaction& interaction) {
    QPrinter carta(QPrinter::HighResolution);
    carta.setDocName(documento.titolo);
    QPrintPreviewDialog anteprima(&carta, &finestra);
    anteprima.setObjectName(u"anteprima"_s);
    anteprima.setWindowTitle(u"Anteprima di stampa - "_s + documento.titolo);
    anteprima.resize(finestra.size());
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, &anteprima, [&](QPrinter* stampante) {
        try {
            Progress progress;
            Dipingi(Scelte(documento, *stampante), *stampante, progress);
        } catch (const Failure& failure) {
            interaction.Show({failure.Message(), {}, Icon::Exclamation});
        }
    });
    anteprima.exec();
}

}  // namespace cronovia
