// SPDX-License-Identifier: GPL-3.0-or-later
// Archives filled from exchange files made of anything, handed on. What must hold: what is exported and imported into
// an empty archive is exported from there again with as much in it, and from the second time on byte for byte; the
// first import gives the trips the codes of their order.
#include <QBuffer>
#include <QFile>

#include "archivio_di_prova.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "interaction/failure.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

EsitoImport Importa(Archive& archive, QByteArray file) {
    QBuffer buffer(&file);
    Pretendi(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    return ImportaMete({archive, u"prova.iei"_s, {}}, buffer, progress);
}

struct Esportato {
    EsitoExport esito;
    QByteArray byte;
};

Esportato Esporta(Archive& archive, const QString& path) {
    Progress progress;
    Esportato esportato{EsportaMete({archive, path, {}, true}, progress), {}};
    QFile file(path);
    Pretendi(file.open(QIODevice::ReadOnly));
    esportato.byte = file.readAll();
    return esportato;
}

// Hands an archive on to an empty one.
Esportato Passa(const Esportato& da, Archive& a, const QString& path) {
    const EsitoImport import = Importa(a, da.byte);
    Pretendi(import.meteInserite == da.esito.mete && import.tappeInserite == da.esito.tappe);
    Pretendi(import.meteScartate + import.tappeSenzaMeta + import.ritocchi.orariRifiutati == 0 &&
             import.ritocchi.accorciati.empty());
    Esportato dopo = Esporta(a, path);
    Pretendi(dopo.esito.mete == da.esito.mete && dopo.esito.tappe == da.esito.tappe);
    Pretendi(dopo.esito.voci == da.esito.voci && dopo.esito.caratteriSostituiti == 0);
    return dopo;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    static const CartellaInMemoria cartella;
    static Archive primo = Archive::Open(cartella.filePath(u"primo"_s));
    static Archive secondo = Archive::Open(cartella.filePath(u"secondo"_s));
    const QString path = cartella.filePath(u"viaggi.iei"_s);
    try {
        Importa(primo, QByteArray(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti)));
    } catch (const Failure&) {  // none of our files
        return 0;
    }
    if (primo.Count(Table::MeteVandro) > 0) {
        const Esportato passato = Passa(Esporta(primo, path), secondo, path);
        SvuotaArchivio(primo);
        Pretendi(Passa(passato, primo, path).byte == passato.byte);
    }
    SvuotaArchivio(primo);
    SvuotaArchivio(secondo);
    return 0;
}
