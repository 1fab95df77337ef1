// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/tabella_testo.h"

#include <QDir>

#include "files/celle.h"
#include "files/windows1252.h"
#include "interaction/failure.h"
#include "store/archive.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView kFineRiga("\r\n");

QString RigaTabella(const RigaGriglia& riga) {
    QString testo;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Colonna::LimiteRitorno); ++i) {
        testo += InCella(riga[i].trimmed()) + u'\t';
    }
    return testo + kFineRiga;
}

QByteArray TabellaCronovia(const DatiStampa& dati) {
    QString testo = InCella(dati.meta.localita.trimmed()) + kFineRiga + kFineRiga;
    const RigaGriglia intestazioni = Intestazioni(Vista::FileTabella);
    QStringList scritte(intestazioni.begin(), intestazioni.end());
    scritte.removeAll(QString());
    testo += scritte.join(u'\t') + kFineRiga;
    for (const RigaStampata& riga : dati.righe) {
        if (!riga.testi[Colonna::Tappa].trimmed().isEmpty()) testo += RigaTabella(riga.testi);
    }
    QStringList riassunto;
    for (const QString& parte : {dati.scadenza, dati.costi}) {
        if (!parte.isEmpty()) riassunto += InCella(parte) + kFineRiga;
    }
    if (!riassunto.isEmpty()) testo += kFineRiga + riassunto.join(QString());
    return InWindows1252(testo).byte;
}

}  // namespace

QString FileTabella(const QString& cartella) { return QDir(cartella).filePath(u"Vandtabl.txt"_s); }

void RifiutaFileTabella(const QString& path, const QString& cartella) {
    RifiutaFileArchivio(path, Archive::FilePath(cartella));
    if (!StessoPosto(path, FileTabella(cartella))) return;
    throw Failure(u"Il file %1 è la tabella della cronovia: per le pagine scegli un altro nome."_s.arg(
        QDir::toNativeSeparators(path)));
}

std::unique_ptr<FileIntero> PreparaTabella(const DatiStampa& dati, const QString& cartella) {
    const QString path = FileTabella(cartella);
    RifiutaFileEsistente(path, true);
    RifiutaFileArchivio(path, Archive::FilePath(cartella));
    auto file = std::make_unique<FileIntero>(path);
    file->Scrivi(TabellaCronovia(dati));
    file->Completa();
    return file;
}

void ScriviTabella(const DatiStampa& dati, const QString& cartella) { PreparaTabella(dati, cartella)->Chiudi(); }

}  // namespace cronovia
