#include "print/tabella_testo.h"

#include <QDir>
#include <QFileInfo>

#include "files/windows1252.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const QLatin1StringView kFineRiga("\r\n");

// Characters that mean something in the file become blanks.
QString SuUnaRiga(QString testo) {
    for (QChar& c : testo) {
        if (c < u' ') c = u' ';
    }
    return testo.trimmed();
}

QString RigaTabella(const RigaGriglia& riga) {
    QString testo;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Colonna::LimiteRitorno); ++i) {
        testo += SuUnaRiga(riga[i]) + u'\t';
    }
    return testo + kFineRiga;
}

// Where a file is, or would be, whatever leads there.
QString Posto(const QString& path) {
    const QFileInfo info(path);
    const QString vero = info.canonicalFilePath();
    return vero.isEmpty() ? info.dir().canonicalPath() + u'/' + info.fileName() : vero;
}

QByteArray TabellaCronovia(const DatiStampa& dati) {
    QString testo = SuUnaRiga(dati.meta.localita) + kFineRiga + kFineRiga;
    const RigaGriglia intestazioni = Intestazioni(Vista::FileTabella);
    QStringList scritte(intestazioni.begin(), intestazioni.end());
    scritte.removeAll(QString());
    testo += scritte.join(u'\t') + kFineRiga;
    for (const RigaStampata& riga : dati.righe) {
        if (!riga.testi[Colonna::Tappa].trimmed().isEmpty()) testo += RigaTabella(riga.testi);
    }
    return InWindows1252(testo).byte;
}

}  // namespace

QString FileTabella(const QString& cartella) { return QDir(cartella).filePath(u"Vandtabl.txt"_s); }

// Some file systems take capitals and small letters for the same.
void RifiutaFileTabella(const QString& path, const QString& cartella) {
    if (Posto(path).compare(Posto(FileTabella(cartella)), Qt::CaseInsensitive) != 0) return;
    throw Failure(u"Il file %1 è la tabella della cronovia: per le pagine scegli un altro nome."_s.arg(
        QDir::toNativeSeparators(path)));
}

std::unique_ptr<FileIntero> PreparaTabella(const DatiStampa& dati, const QString& cartella) {
    const QString path = FileTabella(cartella);
    RifiutaFileEsistente(path, true);
    auto file = std::make_unique<FileIntero>(path);
    file->Scrivi(TabellaCronovia(dati));
    file->Completa();
    return file;
}

void ScriviTabella(const DatiStampa& dati, const QString& cartella) { PreparaTabella(dati, cartella)->Chiudi(); }

}  // namespace cronovia
